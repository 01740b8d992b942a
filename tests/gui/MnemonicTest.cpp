#include "forms/Mnemonic.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

TEST(WithMnemonic, marksTheFirstWordWhoseLetterIsFree)
{
    struct Row
    {
        const char* name;
        const char* caption;
        const char* taken;
        const char* marked;
    };
    for (const Row& row :
         {Row{"the first word", "Topic Name:", "OC", "&Topic Name:"},
          Row{"its letter is taken", "Topic Name:", "T", "Topic &Name:"},
          Row{"small letters count as capitals", "topic name", "T", "topic &name"},
          Row{"a short word is passed over", "Select a book", "SB", "S&elect a book"},
          Row{"every word is taken", "Topic Name", "TN", "T&opic Name"},
          Row{"nothing is free", "ab", "AB", "ab"}, Row{"nothing to mark", "...", "", "..."},
          Row{"no text", "", "", ""}, Row{"an ampersand stays one", "R&D & so on", "", "&R&&D && so on"},
          Row{"a letter with an accent is no key",
              "\xC3\x9C"
              "ber uns",
              "",
              "\xC3\x9C"
              "ber &uns"}}) {
        EXPECT_EQ(WithMnemonic(QString::fromUtf8(row.caption), QString::fromLatin1(row.taken)).toStdString(),
                  row.marked)
            << row.name;
    }
}

} // namespace
} // namespace ls
