#include "core/constants.h"
#include "core/number_text.h"
#include "core/text_encoding.h"
#include "exchange/kvt_file.h"

namespace korvet {
namespace {

/// Lines of a parameter file under way.
class KvtText {
  public:
    explicit KvtText(char decimalMark) : decimalMark_(decimalMark) {}

    void Line(std::string_view text) { text_.append(text).append("\r\n"); }
    void Text(std::string_view text) { Line(OnOneLine(text)); }
    void Number(double value) { Line(NumberText(value, decimalMark_)); }
    void Exactly(double value) { Line(ShortestText(value, decimalMark_)); }
    void Integer(int value) { Line(std::to_string(value)); }
    void Boolean(bool value) { Line(value ? "True" : "False"); }

    void Point(const C3DPoint& point) {
        Number(point.x);
        Number(point.y);
        Number(point.z);
    }

    void Start(const std::string& section) { Line("Start " + section); }

    /// The end marker of a section and the line between it and the next one.
    void End(const std::string& section, std::string_view separator = " ") {
        Line("End " + section);
        Line(separator);
    }

    [[nodiscard]] const std::string& Whole() const { return text_; }

  private:
    char decimalMark_;
    std::string text_;
};

void WriteHeader(KvtText& text, const CKvtFile& file) {
    text.Line(std::string(ProductTitle) + "-" + std::string(ProgramVersion));
    text.Text(file.Category);
    text.Integer(file.Dtype);
    text.End("Header");
}

void WriteView(KvtText& text, const CViewPoint& view) {
    text.Start("ViewPoint");
    text.Number(view.AroundZ);
    text.Number(view.FromXY);
    text.Number(view.PanX);
    text.Number(view.PanY);
    text.Number(view.ZoomFactor);
    text.Boolean(view.Patternview);
    text.End("ViewPoint");
}

void WriteSettings(KvtText& text, const CPatternSettings& settings) {
    text.Start("Pattern Settings");
    text.Number(settings.Thickness);
    text.Integer(settings.segs);
    text.Number(settings.JoinAngle);
    text.Boolean(settings.JoinAngleDisable);
    text.Integer(settings.NoOfSides);
    text.Boolean(settings.HalfPattern);
    text.Integer(settings.InOutMean);
    // These four carry nothing any more, but older readers count on them.
    text.Integer(200);
    text.Integer(150);
    text.Line("No Border");
    text.Line(" ");
    text.Integer(settings.LapEnable);
    text.Integer(settings.JoinType);
    text.Number(settings.LapSize0);
    text.Number(settings.LapSize1);
    text.Number(settings.LapSize2);
    text.Number(settings.KerfSpacing);
    text.Boolean(settings.KerfEnabled);
    text.Text(settings.PositionString);
    text.Integer(settings.TemplateType);
    text.Boolean(settings.TemplateTypeEnabled);
    text.End("Pattern Settings");
}

void WriteParameters(KvtText& text, const KvtControls& controls) {
    text.Start("Standard TextBoxes");
    for (const auto& box : controls.txtParameter) {
        text.Text(box.value_or(""));
    }
    text.End("Standard TextBoxes");
}

void WriteOptions(KvtText& text, const std::string& section,
                  std::initializer_list<const std::vector<std::optional<bool>>*> groups) {
    text.Start(section);
    for (const auto* group : groups) {
        for (const auto& value : *group) {
            text.Boolean(value.value_or(false));
        }
    }
    text.End(section);
}

void WritePlacement(KvtText& text, const CKvtFile& file) {
    text.Start("Rotation");
    text.Point(file.RotationPoint);
    text.Number(file.RotationAngle);
    text.End("Rotation");
    text.Start("Move");
    text.Point(file.MovePoint1);
    text.Point(file.MovePoint2);
    text.End("Move");
}

void WriteRequests(KvtText& text, const CKvtFile& file) {
    text.Start("Requests");
    for (const bool request : {file.CoordGridRequested, file.CoordTableRequested, file.DiagonalsRequested,
                               file.FrameRequested, file.TrueLengthsRequested}) {
        text.Boolean(request);
    }
    text.End("Requests", "");
}

void WriteLabelAndDimensions(KvtText& text, const CKvtFile& file) {
    text.Start("LabelPoint");
    if (file.LabelPoint) {
        text.Point(*file.LabelPoint);
    }
    text.End("LabelPoint");
    text.Start("Dimensions");
    if (file.DimensionList) {
        for (const CDimension& dimension : *file.DimensionList) {
            for (const int part : {dimension.PointNo1, dimension.PointNo2, dimension.ListNo1,
                                   dimension.ListNo2, dimension.SurfaceNo1, dimension.SurfaceNo2}) {
                text.Integer(part);
            }
        }
    }
    text.End("Dimensions");
}

void WriteComments(KvtText& text, const CKvtFile& file) {
    text.Start("Comments");
    text.Text(file.Comment1);
    text.Text(file.Comment2);
    text.End("Comments");
}

void WriteBranchMaterial(KvtText& text, const CPatternSettings& settings, const BranchOptions& branch) {
    text.Start("Branch Material");
    text.Number(settings.ThicknessA);
    text.Number(settings.ThicknessB);
    text.Integer(static_cast<int>(branch.join));
    text.Boolean(branch.heelCompensation);
    text.End("Branch Material");
}

/// Both rows point by point, in the digits that read back to the same points.
void WriteMesh(KvtText& text, const CRuleSurf& mesh) {
    text.Start("Imported Mesh");
    text.Line(std::to_string(mesh.List1->Count()));
    for (const PointList* const list : {&mesh.List1, &mesh.List2}) {
        for (const C3DPoint& point : **list) {
            for (const double coordinate : {point.x, point.y, point.z}) {
                text.Exactly(coordinate);
            }
        }
    }
    text.End("Imported Mesh");
}

}  // namespace

std::string CKvtFile::Compose(char decimalMark) const {
    KvtText text(decimalMark);
    WriteHeader(text, *this);
    WriteView(text, ViewPoint);
    WriteSettings(text, PatternSettings);
    WriteParameters(text, Controls);
    WriteOptions(text, "Angle Option Buttons", {&Controls.optTopAngle, &Controls.optBaseAngle});
    WriteOptions(text, "Pattern Select Option Buttons", {&Controls.optPatternSelect});
    WriteOptions(text, "Flush Side Option Buttons", {&Controls.optFlushSide});
    WritePlacement(text, *this);
    WriteRequests(text, *this);
    WriteLabelAndDimensions(text, *this);
    WriteComments(text, *this);
    if (Branch) {
        WriteBranchMaterial(text, PatternSettings, *Branch);
    }
    if (Mesh && Mesh->DXFMeshOK) {
        WriteMesh(text, Mesh->DXFMesh);
    }
    return text.Whole();
}

void CKvtFile::SaveFile(FileStore& files, char decimalMark) {
    const std::string bytes = EncodeText(Compose(decimalMark));
    RequireReadable(bytes);
    files.Write(FileName, bytes, Flush::Yes);
    Fingerprint = FingerprintOf(bytes);
}

}  // namespace korvet
