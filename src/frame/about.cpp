#include "frame/about.h"

#include "core/constants.h"
#include "window/frame_model.h"

namespace korvet {
namespace {

std::string VersionText() {
    return "Version " + std::string(ProgramVersion);
}

}  // namespace

SplashDialog::SplashDialog()
    : caption(ProductTitle),
      lblVersion(VersionText()),
      authorship({"Layout of sheet-metal and plate fittings", "Free software under the MIT License"}) {}

AboutDialog::AboutDialog()
    : caption("About " + std::string(ProductTitle)),
      title(ProductTitle),
      version(VersionText()),
      cadVersion("AutoCAD version " + std::to_string(AutoCadVersion)),
      licence("Free software under the MIT License; its words are in the file LICENSE."),
      libraries({"Qt, under the GNU Lesser General Public License, version 3"}) {}

DisclaimerDialog::DisclaimerDialog()
    : text(
          "Check every pattern before you cut.\n\n"
          "A pattern is worked out from the sizes, the thickness and the settings that were typed in. How "
          "the material is cut, bent and joined changes the finished fitting. Measure the pattern against "
          "the drawing, and make a trial piece where an error would be costly.\n\n"
          "The program comes without warranty of any kind, as its licence says.") {}

}  // namespace korvet
