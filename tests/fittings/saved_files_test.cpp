// Every type of every fitting is saved and opened again, whole and, where it has one, as a half pattern.
#include <cctype>
#include <string>
#include <vector>

#include "tests/support/refusals.h"
#include "tests/support/saved_fittings.h"

namespace korvet {
namespace {

struct SavedType {
    std::string category;
    int type;  ///< from 1
};

void PrintTo(const SavedType& saved, std::ostream* out) {
    *out << saved.category << ", type " << saved.type;
}

std::vector<SavedType> EveryType() {
    std::vector<SavedType> types;
    for (const CatalogueRow& row : Catalogue) {
        for (std::size_t page = 0; page < row.table->pages.size(); ++page) {
            types.push_back({std::string(row.category), static_cast<int>(page) + 1});
        }
    }
    return types;
}

std::string NameOf(const testing::TestParamInfo<SavedType>& info) {
    std::string name = info.param.category + std::to_string(info.param.type);
    std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
    return name;
}

class SavedFittings : public testing::TestWithParam<SavedType> {
  protected:
    /// The sample with settings of its own, saved and opened again.
    void ExpectKept(bool half) {
        TestShell shell;
        const auto window = shell.OpenSample(GetParam().category, GetParam().type);
        CPatternSettings& settings = window->settings;
        settings.Thickness = settings.ThicknessA = 2;
        settings.ThicknessB = 3;
        settings.InOutMean = InsideDimension;
        settings.JoinAngle = 35;
        settings.KerfSpacing = 3;
        settings.TemplateType = 1;
        settings.JoinType = 1;
        settings.LapSize0 = settings.LapSize1 = settings.LapSize2 = 5;
        settings.HalfPattern = half;
        SelectFirstPattern(*window);
        EXPECT_EQ(window->BuildFitting(), Passed);
        shell.ui.messages.clear();  // that there is no half with these sizes
        ExpectFileKeepsEverything(shell, *window);
    }
};

TEST_P(SavedFittings, ReadBackToTheSameBytesAndSurfaces) {
    ExpectKept(false);
}

TEST_P(SavedFittings, ReadBackAsAHalfToo) {
    const WindowTable& table = *FindCategory(GetParam().category)->table;
    if (table.halfPatterns == HalfPatterns::Offered) {
        ExpectKept(true);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryType, SavedFittings, testing::ValuesIn(EveryType()), NameOf);

}  // namespace
}  // namespace korvet
