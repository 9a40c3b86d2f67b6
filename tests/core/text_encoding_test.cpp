#include "core/text_encoding.h"

#include <gtest/gtest.h>

namespace korvet {
namespace {

TEST(TextEncoding, AsciiIsItself) {
    EXPECT_EQ(DecodeText("Base 300\r\n"), "Base 300\r\n");
    EXPECT_EQ(EncodeText("Base 300\r\n"), "Base 300\r\n");
    EXPECT_EQ(EncodeText(""), "");
}

TEST(TextEncoding, ReadsUtf8WhenValidElseWindows1252) {
    EXPECT_EQ(DecodeText("\xC3\xBC"), "\xC3\xBC");
    EXPECT_EQ(DecodeText("\xFC"), "\xC3\xBC");
    EXPECT_EQ(DecodeText("\x80"), "\xE2\x82\xAC");              // euro sign
    EXPECT_EQ(DecodeText("\xEF\xBB\xBF\xC3\xBC"), "\xC3\xBC");  // byte order mark
    EXPECT_EQ(DecodeText("\x81"), "\xC2\x81");
}

TEST(TextEncoding, OverlongAndBrokenSequencesAreNotUtf8) {
    EXPECT_EQ(DecodeText("\xC0\xAF"), "\xC3\x80\xC2\xAF");
    EXPECT_EQ(DecodeText("\xE2\x82"), "\xC3\xA2\xE2\x80\x9A");
    EXPECT_EQ(DecodeText("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC");  // a surrogate
}

TEST(TextEncoding, WritesWindows1252WhereEveryCharacterHasAPlace) {
    EXPECT_EQ(EncodeText("\xC3\xBC"), "\xFC");
    EXPECT_EQ(EncodeText("\xE2\x82\xAC"), "\x80");
    EXPECT_EQ(EncodeText("\xC3\xBC\xE6\x9D\xBF"), "\xC3\xBC\xE6\x9D\xBF");
    EXPECT_EQ(EncodeText("\xF0\x9F\x94\xA7"), "\xF0\x9F\x94\xA7");
}

TEST(TextEncoding, ComesBackAsItWas) {
    // The second text in Windows-1252 would be the bytes of a valid UTF-8 letter, so it must stay UTF-8.
    for (const std::string text : {"\xC3\xBC", "\xC3\x83\xC2\xBC", "a\xE2\x80\x93z", "\xE6\x9D\xBF"}) {
        EXPECT_EQ(DecodeText(EncodeText(text)), text);
    }
}

TEST(TextEncoding, Utf16HasTwoUnitsForACharacterAboveTheFirstPlane) {
    EXPECT_EQ(Utf16Units("a\u00fc\u677f"), u"a\u00fc\u677f");
    EXPECT_EQ(Utf16Units("\U0001F527\U0010FFFF"), u"\U0001F527\U0010FFFF");
    EXPECT_EQ(Utf16Units("\xFC"), u"\u00fc");
    EXPECT_EQ(Utf16Units(""), u"");
    for (const char* text : {"", "a\u00fc\u677f", "\U0001F527\U0010FFFF"}) {
        EXPECT_EQ(Utf8Of(Utf16Units(text)), text);
    }
    EXPECT_EQ(Utf8Of(std::u16string{u'a', 0xD83D, u'b', 0xDD27, 0xD83D}), "a?b??");
}

TEST(TextEncoding, OneLineHasNoControlCharacters) {
    EXPECT_EQ(OnOneLine("a\r\nb\tc\x1F"), "a  b c ");
    EXPECT_EQ(OnOneLine("\xC3\xBC"), "\xC3\xBC");
}

TEST(TextEncoding, WhatCannotBeShownBecomesAQuestionMark) {
    EXPECT_EQ(Printable("line 3: \"a b\""), "line 3: \"a b\"");
    EXPECT_EQ(Printable("\xC3\xBC \xE6\x9D\xBF \xF0\x9F\x94\xA7"), "\xC3\xBC \xE6\x9D\xBF \xF0\x9F\x94\xA7");
    EXPECT_EQ(Printable("a\r\n\tb\x7F"), "a???b?");
    EXPECT_EQ(Printable(std::string_view("\0x", 2)), "?x");
    EXPECT_EQ(Printable("\xC2\x85\xC2\xAD"), "??");                       // a C1 control, a soft hyphen
    EXPECT_EQ(Printable("\xE2\x80\xAE\xE2\x80\x8B\xEF\xBB\xBF"), "???");  // turned writing, no width at all
    EXPECT_EQ(Printable("\xEF\xBF\xBE\xF0\x9F\xBF\xBF\xEE\x80\x80"), "???");  // no characters; private use
    EXPECT_EQ(Printable("a\xFF\xC3z\xE2\x82"), "a??z??");                     // bytes that are no UTF-8
}

TEST(TextEncoding, TheBeginningOfATextEndsWithAWholeCharacter) {
    EXPECT_EQ(Beginning("abc", 5), "abc");
    EXPECT_EQ(Beginning("abc", 2), "ab");
    EXPECT_EQ(Beginning("a\xE2\x82\xAC", 4), "a\xE2\x82\xAC");
    EXPECT_EQ(Beginning("a\xE2\x82\xAC"
                        "b",
                        3),
              "a");
    EXPECT_EQ(Beginning("\xE2\x82\xAC", 1), "");
}

TEST(TextEncoding, ValidTextReplacesEachByteThatIsNone) {
    const std::string valid = "a\x01 \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80";
    EXPECT_EQ(ValidText(valid), valid);
    EXPECT_EQ(ValidText("a\xE2\x82"), "a\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(ValidText("\xFFz\xC0\x80"), "\xEF\xBF\xBDz\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(ValidText(""), "");
}

TEST(TextEncoding, AnExcerptIsOfWholeCharacters) {
    EXPECT_EQ(Excerpt("short"), "short");
    EXPECT_EQ(Excerpt(std::string(500, 'x')).size(), 200U);
    std::string text(199, 'x');
    text += "\xC3\xA9 and more";
    EXPECT_EQ(Excerpt(text), std::string(199, 'x'));
}

}  // namespace
}  // namespace korvet
