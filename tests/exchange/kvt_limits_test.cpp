// What is written can be read again, and what is too much is refused on both ways.
#include <gtest/gtest.h>

#include "exchange/kvt_file.h"
#include "tests/support/memory_file_store.h"

namespace korvet {
namespace {

CKvtFile FileWithDimensions(std::size_t count) {
    CKvtFile file;
    file.FileName = "a.Kvt";
    file.Category = "Right Cone";
    file.ViewPoint.AroundZ = 1;
    file.DimensionList = CDimensions();
    for (std::size_t i = 0; i < count; ++i) {
        file.DimensionList->Add({});
    }
    return file;
}

std::string ErrorOfSaving(CKvtFile file) {
    MemoryFileStore files;
    try {
        file.SaveFile(files, '.');
    } catch (const FileError& error) {
        EXPECT_TRUE(files.files.empty());
        return error.what();
    }
    CKvtFile again;
    again.FileName = file.FileName;
    again.LoadFile(files, 24);
    EXPECT_TRUE(again.Compose('.') == file.Compose('.'));
    return "";
}

TEST(KvtLimits, TenThousandDimensionsAndNoMore) {
    EXPECT_EQ(ErrorOfSaving(FileWithDimensions(MostDimensions)), "");
    const CKvtFile over = FileWithDimensions(MostDimensions + 1);
    EXPECT_NE(ErrorOfSaving(over).find("there are more than 10000 dimensions"), std::string::npos);
    CKvtFile read;
    EXPECT_THROW(read.Parse(over.Compose('.'), 24), ParameterFileError);
}

TEST(KvtLimits, ACommentThatCouldNotBeReadAgainIsNotWritten) {
    CKvtFile file = FileWithDimensions(0);
    file.Comment1 = std::string(1000000, 'c');
    EXPECT_EQ(ErrorOfSaving(file), "");
    constexpr std::size_t MoreThanAnyFile = (std::size_t{272} << 20U) + 1;
    try {
        file.RequireReadable(std::string(MoreThanAnyFile, 'c'));
        FAIL() << "it is taken";
    } catch (const FileError& error) {
        EXPECT_NE(std::string(error.what()).find("it is larger than"), std::string::npos) << error.what();
    }
}

TEST(KvtLimits, TheVersionOfAFileIsHeldAgainstThisProgram) {
    const auto isLater = [](const std::string& version) {
        CKvtFile file;
        file.ParseHeader("Korvet Development-" + version + "\r\nRight Cone\r\n0\r\n");
        return file.IsOfLaterVersion();
    };
    for (const char* version : {"3.3.4", "3.4", "3.9.0", "4.3.1", "9.9.9"}) {
        EXPECT_TRUE(isLater(version)) << version;
    }
    for (const char* version : {"3.3.3", "3.3.3 beta", "3.3", "x.y.z"}) {
        EXPECT_FALSE(isLater(version)) << version;
    }
}

}  // namespace
}  // namespace korvet
