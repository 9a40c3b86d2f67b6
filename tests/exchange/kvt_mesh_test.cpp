// The section of the files of imported meshes that stands behind the comments.
#include <gtest/gtest.h>

#include "core/constants.h"
#include "exchange/kvt_file.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

CKvtFile MeshFile() {
    CKvtFile file;
    file.Category = "Imported Mesh";
    file.Mesh = {
        true, "hood.dxf",
        Strip({{0.1, 2, 3, 5}, {1.0 / 3, -4, 1e-7, 5}}, {{1e9, 0, 5, 5}, {6, 1.57079632679489, 7, 5}})};
    return file;
}

const std::string MeshSection =
    "Start Imported "
    "Mesh\r\n2\r\n0.1\r\n2\r\n3\r\n0.3333333333333333\r\n-4\r\n1e-07\r\n1e+09\r\n0\r\n5\r\n6\r\n"
    "1.57079632679489\r\n7\r\nEnd Imported Mesh\r\n \r\n";

std::string WithoutMesh() {
    const std::string whole = MeshFile().Compose('.');
    return whole.substr(0, whole.size() - MeshSection.size());
}

CKvtFile ReadMeshFile(const std::string& text) {
    CKvtFile file;
    file.Mesh = ImportedMesh();
    file.Parse(text, 24);
    return file;
}

std::string MeshRefusal(const std::string& section) {
    try {
        static_cast<void>(ReadMeshFile(WithoutMesh() + section));
    } catch (const ParameterFileError& error) {
        return error.what();
    }
    return "read";
}

TEST(KvtMesh, StandsBehindTheComments) {
    EXPECT_TRUE(MeshFile().Compose('.').ends_with("End Comments\r\n \r\n" + MeshSection));
    CKvtFile none = MeshFile();
    none.Mesh->DXFMeshOK = false;
    EXPECT_EQ(none.Compose('.'), WithoutMesh());
    none.Mesh.reset();
    EXPECT_EQ(none.Compose('.'), WithoutMesh()) << "no other fitting writes it";
}

/// To the last bit: a coordinate that looks like one of the program's angles is none.
TEST(KvtMesh, IsReadBackExactly) {
    ASSERT_NE(1.57079632679489, QuarterTurn);
    for (const char mark : {'.', ','}) {
        const CKvtFile file = ReadMeshFile(MeshFile().Compose(mark));
        ASSERT_TRUE(file.Mesh->DXFMeshOK);
        EXPECT_TRUE(SamePoints(*file.Mesh->DXFMesh.List1, *MeshFile().Mesh->DXFMesh.List1));
        EXPECT_TRUE(SamePoints(*file.Mesh->DXFMesh.List2, *MeshFile().Mesh->DXFMesh.List2));
    }
}

TEST(KvtMesh, AFileWithoutItHasNone) {
    for (const std::string& text : {WithoutMesh(), WithoutMesh() + "\r\n \r\n"}) {
        EXPECT_FALSE(ReadMeshFile(text).Mesh->DXFMeshOK);
    }
}

TEST(KvtMesh, FaultsAreNamed) {
    EXPECT_NE(MeshRefusal("Start Mesh").find("\"Start Mesh\" is not \"Start Imported Mesh\""),
              std::string::npos);
    for (const char* count : {"1", "-2", "2.5", "", "many", "99999999999"}) {
        EXPECT_NE(MeshRefusal("Start Imported Mesh\r\n" + std::string(count) + "\r\n").find("a whole number"),
                  std::string::npos)
            << count;
    }
    EXPECT_NE(MeshRefusal("Start Imported Mesh\r\n2000000000\r\n1\r\n").find("the file ends where a number"),
              std::string::npos);
    EXPECT_NE(MeshRefusal("Start Imported Mesh\r\n2\r\n1\r\nnan\r\n").find("\"nan\" is not a number"),
              std::string::npos);
    std::string longer = MeshSection;
    longer.insert(longer.find("End"), "8\r\n");
    EXPECT_NE(MeshRefusal(longer).find("\"8\" is not \"End Imported Mesh\""), std::string::npos);
    for (std::size_t length = 1; length < MeshSection.find("\r\n \r\n"); ++length) {
        EXPECT_NE(MeshRefusal(MeshSection.substr(0, length)), "read") << length;
    }
}

}  // namespace
}  // namespace korvet
