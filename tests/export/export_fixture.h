#pragma once
// A small fixed planner for the export tests: two classes, assignments with study time, tasks
// and events around Monday 23 November 2026, with texts that hold markup, the "~" and the
// "INSERT" of the templates; and a comparison of whole pages with reference files.
#include <string>

#include "list_view/list_fixture.h"

namespace qh::testing {

// Fills `store` with the fixed planner.
void AddFixedPlanner(RecordStore& store);

// The bytes of a file of tests/export/reference.
std::string ReferenceBytes(const std::string& name);

// Empty when `actual` equals the reference file; otherwise a unified diff of the two. With
// QH_WRITE_REFERENCES set in the environment the reference is rewritten from `actual`
// (then review the change with git diff).
std::string DiffWithReference(const std::string& name, const std::string& actual);

}  // namespace qh::testing
