#include "platform/qt/host_collation.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace qh {
namespace {

int sign(int v) { return v < 0 ? -1 : v > 0 ? 1 : 0; }

// Texts of plain ASCII are keyed a byte per character where the collation allows it. Those
// keys must order the texts exactly as ICU's own keys do, also in locales that join letters
// ("ch" in Czech, "aa" in Danish), weigh accents apart (French in Canada), ignore
// punctuation (Thai) or tell letters apart only as accents (v and w in the traditional
// Finnish and Swedish orders): there the table must stand aside.
TEST(HostCollation, KeysOfPlainTextsOrderAsTheCollationDoes) {
    const std::string alphabet = "aAbBcChHlLvVwWoOeEsS -,.'019zZ~!?()";
    std::mt19937 random(21);
    std::vector<std::string> texts{"", "ch", "Ch", "h", "c", "aa", "a", "ll", "l", "vw", "wv"};
    while (texts.size() < 300) {
        std::string text(std::uniform_int_distribution<std::size_t>(0, 6)(random), ' ');
        for (char& c : text) c = alphabet[std::uniform_int_distribution<std::size_t>(0, alphabet.size() - 1)(random)];
        texts.push_back(text);
    }
    const std::vector<std::string_view> views(texts.begin(), texts.end());
    for (const char* locale : {"en_US", "C", "de_DE", "cs_CZ", "da_DK", "sv_SE", "es_ES", "fr_CA", "th_TH", "hu_HU",
                               "fi_FI@collation=traditional", "sv_SE@collation=traditional"}) {
        SCOPED_TRACE(locale);
        const HostCollation collation(locale);
        std::string batch;
        std::vector<std::size_t> ends;
        collation.appendSortKeys(views, batch, ends);
        ASSERT_EQ(ends.size(), texts.size());
        std::vector<std::string> fast, own;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            fast.push_back(batch.substr(i ? ends[i - 1] : 0, ends[i] - (i ? ends[i - 1] : 0)));
            own.emplace_back();
            collation.appendSortKey(texts[i], own.back());
        }
        int disagreements = 0;
        for (std::size_t i = 0; i < texts.size(); ++i)
            for (std::size_t j = 0; j < texts.size(); ++j)
                if (sign(fast[i].compare(fast[j])) != sign(own[i].compare(own[j])) && ++disagreements <= 3)
                    ADD_FAILURE() << '"' << texts[i] << "\" against \"" << texts[j] << '"';
        EXPECT_EQ(disagreements, 0);
    }
    // Where nothing stands in the way the table serves: a byte per character.
    const HostCollation us("en_US");
    std::string keys;
    std::vector<std::size_t> ends;
    us.appendSortKeys({"Lab report", "lab Report"}, keys, ends);
    EXPECT_EQ(ends, (std::vector<std::size_t>{10, 20}));
    EXPECT_EQ(keys.substr(0, 10), keys.substr(10));
}

}  // namespace
}  // namespace qh
