#include "form/messages.h"

#include <algorithm>
#include <array>

#include "core/constants.h"

namespace korvet {
namespace {

struct Entry {
    int id;
    std::string_view text;
};

/// Texts that end in a blank take a value behind them. Number 82, the caption of the first control panel, is
/// empty on purpose, and so is every number that is not listed.
constexpr std::array English = {
    Entry{1, "DXF created"},
    Entry{2, ProductTitle},
    Entry{3, "DXF File location = "},
    Entry{4, " "},
    Entry{5, "This dimension must be less than "},
    Entry{6, "This dimension cannot be 0"},
    Entry{7, "This dimension must be 0 or greater"},
    Entry{8, "This dimension must be greater than "},
    Entry{9, "Not a valid number"},
    Entry{10, "This dimension must be greater than 0"},
    Entry{11, "Help file not available"},
    Entry{12, "This dimension must be equal to or greater than "},
    Entry{13, "This dimension must be equal to or less than "},
    Entry{14, "This dimension must be between "},
    Entry{15, "This dimension cannot be equal to "},
    Entry{16, " and less than "},
    Entry{17, "This dimension must be increased to allow for material thickness"},
    Entry{18, "This dimension must be an integer (whole number)"},
    Entry{19, "Half pattern not applicable to this item"},
    Entry{20, "Half pattern"},
    Entry{21, "Full pattern"},
    Entry{22, "Thickness = "},
    Entry{23, "X or Y axis of rotation must be selected"},
    Entry{24, "A lap join has been requested but no 'Lap Size' is specified"},
    Entry{25, "Lap join along seam may be too large"},
    Entry{26, "A pattern must be selected"},
    Entry{27, "Dimensions are based on the "},
    Entry{28, "Top lap is too large"},
    Entry{29,
          "\r\n Either the branch pipe diameter or the offset distance is too large. \r\n This may also be "
          "due to the values for material thickness and Set-In/Set-On."},
    Entry{34, "Thickness of branch pipe = "},
    Entry{35, "Thickness of trunk pipe = "},
    Entry{38, "Branch type is Set IN"},
    Entry{39, "Branch type is Set ON"},
    Entry{40, "Branch type is Mean to Mean"},
    Entry{50, "No help for this item"},
    Entry{51, "Insufficient lblLabelItems on frmLabelDialog"},
    Entry{52, "Unable to initializing printer settings"},
    Entry{70, "No view selected"},
    Entry{71, "This option is only available in pattern view"},
    Entry{72, "No label to remove"},
    Entry{73, "Position label"},
    Entry{74, "No frame to remove"},
    Entry{75, "Nothing to window"},
    Entry{76, "Operation cannot be carried out at this time"},
    Entry{77, "No coordinate grid to remove"},
    Entry{78, "No true length dimensions to remove"},
    Entry{79, "No diagonal dimensions to remove"},
    Entry{80, "No coordinate table to remove"},
    Entry{81, "Exceeded maximum zoom"},
    Entry{83, "Create or update pattern"},
    Entry{84, "Select dimension for removal"},
    Entry{85, "The item has no extents"},
    Entry{86, "Press left mouse button down at first point and release at second point"},
    Entry{87, "Press left mouse button down at first rotation reference point and release at second point"},
    Entry{100, "Save parameter file"},
    Entry{101, "Nothing to save!"},
    Entry{102, "Sorry, no help for this item!"},
    Entry{103, "Settings"},
    Entry{104, "Global Options"},
    Entry{105, "DXF successfully saved to: "},
    Entry{106, "Exporting unfolded pattern"},
    Entry{107, "Exporting wire-frame model"},
    Entry{108, "This file is already open by another process"},
    Entry{109, "Error loading parameter file"},
    Entry{110, "Not a valid "},
    Entry{111, "A problem has occured creating the DXF file"},
    Entry{113, "No printer were settings retrieved!"},
    Entry{114, "Nothing to print!"},
    Entry{116, "\r\n The Settings.ini file is being updated."},
    Entry{117, "Printer Error"},
    Entry{118, "No Printer available"},
    Entry{140, "Could not locate an active AutoCAD 2000 drawing."},
    Entry{141, "Pick the insertion point on the AutoCAD screen"},
    Entry{142, "Transfer to AutoCAD complete"},
    Entry{143, "Transferring to AutoCAD, please wait..."},
    Entry{150, "Unsuitable DXF: "},
    Entry{151, "No ENTITIES Section"},
    Entry{152, "No suitable mesh found.  (see Help for more information)"},
    Entry{153, "Suitable mesh located"},
    Entry{154, "Mesh must have at least two vertices in the M direction"},
    Entry{155, "Select a mesh object from the AutoCAD screen"},
    Entry{156,
          "This mesh is a closed surface.  That is, it has no start or end edges. See help for further "
          "information"},
    Entry{157, "The 3D polygon mesh cannot be transfered to a drawing layout, only to model space"},
};

}  // namespace

std::string GetMessage(int id, std::string_view language) {
    if (language != "English") {
        return {};
    }
    const auto* const entry =
        std::find_if(English.begin(), English.end(), [id](const Entry& e) { return e.id == id; });
    return entry == English.end() ? std::string() : std::string(entry->text);
}

}  // namespace korvet
