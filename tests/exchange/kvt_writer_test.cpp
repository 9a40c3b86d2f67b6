// The parameter file as it is written, line by line.
#include <gtest/gtest.h>

#include "tests/exchange/kvt_lines.h"
#include "tests/support/memory_file_store.h"

namespace korvet {
namespace {

TEST(KvtWriter, LaysOutEveryLine) {
    EXPECT_EQ(SplitLines(FullFile().Compose('.')), FullFileLines);
}

TEST(KvtWriter, EndsEveryLineWithCrLf) {
    EXPECT_EQ(FullFile().Compose('.'), JoinedLines(FullFileLines));
}

TEST(KvtWriter, SavesInOneFlushedStep) {
    MemoryFileStore files;
    FullFile().SaveFile(files, '.');
    ASSERT_EQ(files.writes.size(), 1U);
    EXPECT_EQ(files.writes[0].flush, Flush::Yes);
    EXPECT_EQ(files.files["a.Kvt"], JoinedLines(FullFileLines));
}

TEST(KvtWriter, AFailedSaveLeavesTheOldFile) {
    MemoryFileStore files;
    files.files["a.Kvt"] = "old";
    files.unwritable.insert("a.Kvt");
    EXPECT_THROW(FullFile().SaveFile(files, '.'), FileError);
    EXPECT_EQ(files.files["a.Kvt"], "old");
}

TEST(KvtWriter, KeepsTypedTextOnItsLine) {
    CKvtFile file = FullFile();
    file.Comment1 = "two\r\nlines";
    const KvtLines lines = SplitLines(file.Compose('.'));
    EXPECT_EQ(lines.size(), FullFileLines.size());
    EXPECT_EQ(lines[FullFileLines.size() - 4], "two  lines");
}

TEST(KvtWriter, UsesTheDecimalMarkOfTheLocaleAndReadsBoth) {
    EXPECT_EQ(SplitLines(FullFile().Compose(','))[15], "1,2");
    CKvtFile file = Reader();
    file.Parse(FullFile().Compose(','), 24);
    EXPECT_EQ(file.PatternSettings.Thickness, 1.2);
    file.Parse(JoinedLines(FullFileLines), 24);
    EXPECT_EQ(file.PatternSettings.Thickness, 1.2);
}

TEST(KvtWriter, WritesWindows1252WhereItCan) {
    MemoryFileStore files;
    CKvtFile file = FullFile();
    file.Comment1 =
        "Stra\xC3\x9F"
        "e";
    file.SaveFile(files, '.');
    EXPECT_NE(files.files["a.Kvt"].find("Stra\xDF"
                                        "e"),
              std::string::npos);
    file.Comment1 = "\xE6\x9D\xBF";  // a Chinese character has no place there
    file.SaveFile(files, '.');
    EXPECT_NE(files.files["a.Kvt"].find("\xE6\x9D\xBF"), std::string::npos);
}

}  // namespace
}  // namespace korvet
