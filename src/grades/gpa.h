#pragma once
// The grade point average of each class of the active term and of the term, from the
// graded assignments, as the drop-down list `ComboGPA` shows them.
//
// Within a class the grades are weighted; the term average is the plain mean of the class
// averages, over the classes that have a grade. All sums and averages are single
// precision, and the two letter tests differ on purpose: a class average matches the first
// threshold at or below it, the term average the first threshold strictly below it, and
// the term's test sees its average already rounded to two decimals. So a class at 3.796
// shows "3.80 (A-)" while a class at exactly 3.80 shows "(A)", and a term at 3.80 "(A-)".
#include <string>
#include <string_view>
#include <vector>

#include "common/column.h"
#include "common/int16.h"
#include "record_store/columns.h"

namespace qh {

// Grade points of a grade text, compared exactly: "A" 4.0, "A-" 3.7 ... "E+" 0.3; any
// other text, "E" too, is 0.
float GradePoints(std::string_view grade);

// The weight of a weight text: its number when the text is numeric and the number lies
// from 1 to 100, else 5.
float GradeWeight(std::string_view weight);

// " (A)  " ... " (E)  ": the class test (threshold at or below the average).
std::string ClassGradeLabel(float average);
// The term test (threshold strictly below the average).
std::string TermGradeLabel(float average);

// A number in the format "0.00": rounded half away from zero on its decimal text of
// `significantDigits` digits (7 for single precision, 15 for double), as the host's
// number formatting does.
std::string FormatHundredths(double value, int significantDigits);

// The grade list and the per-class columns it is made from.
struct GradeList {
    TextColumn GPAClassNames, GPAForeColors, GPABackColors;
    Column<Int16> GPAClassIDs;
    Column<float> GPAPoints, GPAWeights;
    TextColumn GPATexts;       // "3.25 (B+)  "; empty for a class without grades
    std::string GPATotalText;  // "3.10 (B)  "; empty when no class has a grade
    // The entries of the list: "GPA", "Total " and the term's text, then per class the
    // first 13 characters of its name, a blank and its text.
    std::vector<std::string> Entries;
};

// Live classes of the active term (their term link equals CurrentTermID) and the live
// assignments linked to them whose grade is neither empty nor a single blank; done or not
// plays no part.
GradeList ComputeGradeList(const RecordStore& store);

}  // namespace qh
