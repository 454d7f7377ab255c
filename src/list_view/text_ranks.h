#pragma once
// The order of the texts a list was last sorted by, kept from one rebuild to the next.
//
// Every scroll step gathers and sorts the whole list anew, and a text sort makes a
// collation key for every distinct text, which is the costly part. The ranks found for the
// distinct texts of the last sort are kept here; a later sort by the same rule whose texts
// all have a rank reuses them without making keys: ranks found among a set of texts order
// any part of that set the same way. A text without a rank makes the sort rank afresh and
// replace the ranks. So the order is always the one the keys give.
#include "list_view/text_rank_table.h"

namespace qh {

class Locale;

struct TextRanks {
    const Locale* locale = nullptr;
    bool binary = false;  // ranks by character code rather than by the platform's collation
    TextRankTable rank;
};

}  // namespace qh
