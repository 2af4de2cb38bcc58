#include "grid/ui/file_text.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(FileText, ValidUtf8IsShownAsIt) {
  EXPECT_EQ(file_text("Stra\xc3\x9f"
                      "e \xe2\x99\xaf"),
            QStringLiteral("Stra\u00dfe \u266f"));
  EXPECT_EQ(file_text("\xef\xbf\xbd"), QStringLiteral("\ufffd"));
  EXPECT_EQ(file_text(""), QString());
}

TEST(FileText, AllElseIsShownAsLatin1) {
  EXPECT_EQ(file_text("Fl\xf6te"), QStringLiteral("Fl\u00f6te"));
  EXPECT_EQ(file_text("caf\xe9"), QStringLiteral("caf\u00e9")) << "cut short as UTF-8";
  EXPECT_EQ(file_text("\xc3\xa9 \xff"), QStringLiteral("\u00c3\u00a9 \u00ff")) << "the text whole";
}

}  // namespace
}  // namespace lunavox
