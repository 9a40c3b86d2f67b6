// The section of branch files that stands behind the comments.
#include <gtest/gtest.h>

#include "exchange/kvt_file.h"

namespace korvet {
namespace {

CKvtFile BranchFile() {
    CKvtFile file;
    file.Category = "Branch";
    file.PatternSettings.ThicknessA = 2.5;
    file.PatternSettings.ThicknessB = 4;
    file.Branch = {SetOnJoin, true};
    return file;
}

const std::string Section = "Start Branch Material\r\n2.5\r\n4\r\n1\r\nTrue\r\nEnd Branch Material\r\n \r\n";

/// The text up to the section.
std::string WithoutSection() {
    const std::string whole = BranchFile().Compose('.');
    return whole.substr(0, whole.size() - Section.size());
}

CKvtFile Read(const std::string& text) {
    CKvtFile file;
    file.Branch = BranchOptions();
    file.Parse(text, 24);
    return file;
}

std::string Refusal(const std::string& section) {
    try {
        static_cast<void>(Read(WithoutSection() + section));
    } catch (const ParameterFileError& error) {
        return error.what();
    }
    return "read";
}

TEST(KvtBranch, StandsBehindTheComments) {
    EXPECT_TRUE(BranchFile().Compose('.').ends_with("End Comments\r\n \r\n" + Section));
    CKvtFile plain = BranchFile();
    plain.Branch.reset();
    EXPECT_EQ(plain.Compose('.'), WithoutSection()) << "no other fitting writes it";
}

TEST(KvtBranch, IsReadBack) {
    const CKvtFile file = Read(BranchFile().Compose('.'));
    EXPECT_EQ(file.PatternSettings.ThicknessA, 2.5);
    EXPECT_EQ(file.PatternSettings.ThicknessB, 4);
    EXPECT_EQ(file.Branch->join, SetOnJoin);
    EXPECT_TRUE(file.Branch->heelCompensation);
}

TEST(KvtBranch, AFileWithoutItIsMeanToMeanOfNoThickness) {
    for (const std::string& text : {WithoutSection(), WithoutSection() + "\r\n \r\n"}) {
        const CKvtFile file = Read(text);
        EXPECT_EQ(file.PatternSettings.ThicknessA, 0);
        EXPECT_EQ(file.PatternSettings.ThicknessB, 0);
        EXPECT_EQ(file.Branch->join, MeanToMeanJoin);
        EXPECT_FALSE(file.Branch->heelCompensation);
        EXPECT_TRUE(file.BranchMissing);
    }
    EXPECT_FALSE(Read(BranchFile().Compose('.')).BranchMissing);
}

TEST(KvtBranch, AReaderThatDoesNotKnowItStopsAtTheComments) {
    CKvtFile file;
    file.Parse(BranchFile().Compose('.'), 24);
    EXPECT_EQ(file.PatternSettings.ThicknessA, 0);
    EXPECT_FALSE(file.Branch.has_value());
    EXPECT_FALSE(file.BranchMissing);
}

TEST(KvtBranch, FaultsAreNamed) {
    EXPECT_NE(Refusal("Start Bran").find("\"Start Bran\" is not \"Start Branch Material\""),
              std::string::npos);
    EXPECT_NE(Refusal("Start Branch Material\r\nthick\r\n").find("\"thick\" is not a number"),
              std::string::npos);
    EXPECT_NE(Refusal("Start Branch Material\r\n1\r\n2\r\n3\r\n").find("a whole number from 0 to 2"),
              std::string::npos);
    EXPECT_NE(Refusal("Start Branch Material\r\n1\r\n2\r\n1\r\nmaybe\r\n").find("True or False"),
              std::string::npos);
    // Cut short at any byte behind the first one of the section.
    for (std::size_t length = 1; length < Section.find("\r\n \r\n"); ++length) {
        EXPECT_NE(Refusal(Section.substr(0, length)), "read") << length;
    }
}

}  // namespace
}  // namespace korvet
