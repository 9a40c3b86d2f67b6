// Murok Mitre: an offset of three round pipes, as quarter templates.
#include "fittings/bends/murok_mitre.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

enum Box : int { Radius = 0, OffsetLength = 1, Length1 = 2, Length2 = 3, OffsetDistance = 4 };

Outcome Build(FittingForm& form, CMurokMitre& mitre) {
    if (form.CheckPositive(Radius)) {
        return Refused;
    }
    const double R = MeanRadius(form, Radius);
    if (CheckRoundWall(form, Radius, R) ||
        form.CheckAllPositive(OffsetLength, Length1, Length2, OffsetDistance)) {
        return Refused;
    }
    mitre.BaseRad = R;
    mitre.OffsetLength = form.Value(OffsetLength);
    mitre.Length1 = form.Value(Length1);
    mitre.Length2 = form.Value(Length2);
    mitre.Offset = form.Value(OffsetDistance);
    mitre.Thickness = form.settings.Thickness;
    mitre.TemplateType = form.settings.TemplateType;
    mitre.KerfSpacing = form.settings.KerfSpacing;
    return Passed;
}

// The sketch: the plan, in which the axes lie. Lengths are taken along the line on the inside of both bends,
// the highest one of every piece: on the first leg it ends at the highest point of the mitre, List1.
constexpr SketchView Views[] = {{.turn = 0, .tilt = 90}};
constexpr SketchPoint FirstMitre(double dx = 0, double dy = 0) {
    return SpotOf(1, Spot::MaxZ, dx, dy);
}
constexpr SketchPoint SecondMitre(double dx = 0, double dy = 0) {
    return FirstMitre(180 + dx, dy);
}

constexpr BoxEntry Boxes[] = {
    {Radius, "Radius", "70", LinearSize(Side::Right, SecondMitre(0, -70), SecondMitre())},
    {OffsetLength, "Offset Length", "180", LinearSize(Side::Below, FirstMitre(), SecondMitre())},
    {Length1, "Length 1", "200", LinearSize(Side::Below, FirstMitre(-200), FirstMitre())},
    {Length2, "Length 2", "150", LinearSize(Side::Below, SecondMitre(), SecondMitre(150))},
    {OffsetDistance, "Offset Distance", "280", LinearSize(Side::Left, FirstMitre(), FirstMitre(0, 280))}};
constexpr LabelEntry Labels[] = {{Radius}, {OffsetLength}, {Length1}, {Length2}, {OffsetDistance}};

constexpr PageEntry Pages[] = {{Boxes, Labels, Views}};

}  // namespace

const WindowTable frmMurokMitre = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CMurokMitre>,
    .buildFitting = BuildAs<CMurokMitre, Build>,
    .multiple = true,
    .kerfEnabled = true,
};

}  // namespace korvet
