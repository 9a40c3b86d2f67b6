#include "sketch/solid.h"

#include <algorithm>
#include <cmath>

#include "sketch/solid_mesh.h"

namespace korvet {
namespace {

/// Towards the light: from the upper left, in front of the shape; of length 1.
constexpr EyePoint Light = {-0.4, 0.35, 0.84705};

/// How much a wall faces the light, seen from the eye's side of it: 0.5 for one that the light grazes.
double LightOn(const EyePoint& normal) {
    const double towards = Light.x * normal.x + Light.y * normal.y + Light.depth * normal.depth;
    return std::clamp(0.5 + 0.5 * (normal.depth < 0 ? -towards : towards), 0.0, 1.0);
}

}  // namespace

SketchXY ProjectOnSketch(const C3DPoint& point, const SketchView& view) {
    return OnPicture(SeenFrom(view, point));
}

SolidPicture DrawSolid(const CRuleSurfs& model, const SketchView& view, std::size_t shownOff) {
    const SolidMesh mesh = MakeSolidMesh(model, view);
    SolidPicture picture;
    picture.bounds = mesh.bounds;
    const SeenFaces seenFaces(mesh);
    for (const std::size_t number : PaintersOrder(mesh, seenFaces).faces) {
        const MeshFace& face = mesh.faces[number];
        SolidFace seen{{}, LightOn(face.wallNormal), face.inside, IsPale(face, shownOff)};
        for (const std::size_t corner : face.corners) {
            seen.corners.push_back(OnPicture(mesh.vertices[corner]));
        }
        picture.faces.push_back(std::move(seen));
    }
    picture.edges = VisibleEdges(mesh, seenFaces, shownOff);
    return picture;
}

}  // namespace korvet
