#include "fittings/extruded.h"

#include <memory>
#include <utility>

namespace korvet {

CRuleSurf Extruded(C3DPoints line, double height) {
    for (C3DPoint& point : line) {
        point.Flag = RuleStation;
    }
    CRuleSurf wall;
    wall.List2 = std::make_shared<C3DPoints>(line);
    for (C3DPoint& point : *wall.List2) {
        point.z = height;
    }
    wall.List1 = std::make_shared<C3DPoints>(std::move(line));
    return wall;
}

}  // namespace korvet
