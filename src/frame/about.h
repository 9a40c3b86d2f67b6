// The windows that tell about the program: splash, About and the disclaimer.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "form/controls.h"

namespace korvet {

struct SplashDialog {
    SplashDialog();

    std::string caption;  ///< the product title
    Place place = {0, 0, 9240, 5640};
    std::string lblVersion;                 ///< "Version " and the program's
    std::array<std::string, 2> authorship;  ///< two fixed lines
    std::string btnAbout = "&About";
    std::string btnContinue = "&Continue";
};

struct AboutDialog {
    AboutDialog();

    std::string caption;
    std::string title;
    std::string version;
    std::string cadVersion;  ///< the line of the CAD program's version
    std::string licence;
    std::vector<std::string> libraries;  ///< fixed part; the desktop adds the versions that run
};

struct DisclaimerDialog {
    std::string caption = "Disclaimer";
    std::string text;
    std::string btnClose = "Close";

    DisclaimerDialog();
};

}  // namespace korvet
