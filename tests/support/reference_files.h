#pragma once
// Whole outputs compared with files of the source tree that say what they must be.
#include <string>

namespace qh::test {

// The bytes of a file; empty when it cannot be read.
std::string ReadBytes(const std::string& path);
void WriteBytes(const std::string& path, const std::string& bytes);

// What a shell command printed on its standard output; empty when it could not run.
std::string CommandOutput(const std::string& command);

// Empty when `actual` equals the file at `path`; otherwise a unified diff of the two.
// With QH_WRITE_REFERENCES set in the environment the file is rewritten from `actual`
// (then review the change with git diff).
std::string DiffWithFile(const std::string& path, const std::string& actual);

}  // namespace qh::test
