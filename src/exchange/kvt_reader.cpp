#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>
#include <vector>

#include "core/constants.h"
#include "core/number_text.h"
#include "core/rule_surf.h"
#include "core/text_encoding.h"
#include "exchange/kvt_file.h"
#include "exchange/kvt_lines.h"

namespace korvet {
namespace {

/// The digit at a position of the version, 0 when there is none.
int VersionDigit(const std::string& version, std::size_t position) {
    return position < version.size() && version[position] >= '0' && version[position] <= '9'
               ? version[position] - '0'
               : 0;
}

void ReadHeader(KvtLines& lines, CKvtFile& file) {
    const std::string line{lines.ReadLine()};
    // A separator and the version follow the name: the name by itself is that of another product.
    file.Product = line.size() > ProductTitle.size() ? line.substr(0, ProductTitle.size()) : "";
    file.Version = line.size() > ProductTitle.size() + 1 ? line.substr(ProductTitle.size() + 1) : "";
    file.VersionNo = VersionDigit(file.Version, 0);
    file.SubVersion = VersionDigit(file.Version, 2);
    file.SubVersionIndex = VersionDigit(file.Version, 4);
    if (file.Product != ProductTitle) {
        throw ForeignProductError("line 1: " + QuotedLine(line) + " is not " + QuotedLine(ProductTitle) +
                                  " with a version behind it");
    }
    file.Category = lines.ReadLine();
    try {
        file.Dtype = lines.ReadInteger(-32768, 32767);
    } catch (const ParameterFileError& error) {
        throw HeaderError(error.what());
    }
}

void ReadView(KvtLines& lines, CKvtFile& file) {
    lines.SkipTo("Start ViewPoint");
    file.ViewPoint.AroundZ = lines.ReadNumber();
    if (file.ViewPoint.AroundZ == 0.0) {
        file.ViewPoint.AroundZ = -QuarterTurn;  // an old-style plan view
    }
    file.ViewPoint.FromXY = lines.ReadNumber();
    file.ViewPoint.PanX = lines.ReadNumber();
    file.ViewPoint.PanY = lines.ReadNumber();
    file.ViewPoint.ZoomFactor = lines.ReadNumber();
    file.ViewPoint.Patternview = lines.ReadBoolean();
}

void ReadSettings(KvtLines& lines, CKvtFile& file) {
    CPatternSettings& settings = file.PatternSettings;
    lines.SkipTo("Start Pattern Settings");
    settings.Thickness = lines.ReadNumber();
    settings.segs = lines.ReadInteger(MinSegs, MaxSegs);
    settings.JoinAngle = lines.ReadNumber();
    settings.JoinAngleDisable = lines.ReadBoolean();
    settings.NoOfSides = lines.ReadShort();
    settings.HalfPattern = lines.ReadBoolean();
    settings.InOutMean = lines.ReadShort(0, 2);
    for (int i = 0; i < 4; ++i) {
        lines.ReadLine();  // 200, 150, the border and a blank: they carry nothing any more
    }
    settings.LapEnable = lines.ReadShort();
    settings.JoinType = lines.ReadShort();
    settings.LapSize0 = lines.ReadNumber();
    // Each digit is asked for itself, so that a file of 4.0 counts as old.
    const bool oneLap = file.SubVersion < 3 || file.VersionNo < 3;
    settings.LapSize1 = oneLap ? settings.LapSize0 : lines.ReadNumber();
    settings.LapSize2 = oneLap ? settings.LapSize0 : lines.ReadNumber();
    settings.KerfSpacing = lines.ReadNumber();
    settings.KerfEnabled = lines.ReadBoolean();
    settings.PositionString = lines.ReadLine();
    settings.TemplateType = lines.ReadShort();
    settings.TemplateTypeEnabled = lines.ReadBoolean();
}

void ReadParameters(KvtLines& lines, CKvtFile& file) {
    lines.SkipTo("Start Standard TextBoxes");
    for (auto& text : file.Controls.txtParameter) {
        text = std::string(lines.ReadLine());
    }
}

/// Reads a section of option buttons, group after group. A line that is no Boolean ends its group, the end
/// marker the whole section, so that no group eats the lines of the next section.
void ReadOptions(KvtLines& lines, const std::string& name,
                 std::initializer_list<std::vector<std::optional<bool>>*> groups) {
    lines.SkipTo("Start " + name);
    for (auto* group : groups) {
        for (auto& value : *group) {
            const std::string_view line = lines.ReadLine();
            if (line == "End " + name) {
                return;
            }
            value = KvtLines::Boolean(line);
            if (!value) {
                break;
            }
        }
    }
}

/// A place that the pattern is turned about or moved to. Farther out its coordinates would lose their places.
C3DPoint ReadPlace(KvtLines& lines) {
    const C3DPoint place = lines.ReadPoint();
    for (const double coordinate : {place.x, place.y, place.z}) {
        if (std::fabs(coordinate) > LargestSize) {
            lines.RefuseLine("the point lies beyond " + NumberText(LargestSize));
        }
    }
    return place;
}

void ReadPlacement(KvtLines& lines, CKvtFile& file) {
    lines.SkipTo("Start Rotation");
    file.RotationPoint = ReadPlace(lines);
    file.RotationAngle = lines.ReadNumber();
    lines.SkipTo("Start Move");
    file.MovePoint1 = ReadPlace(lines);
    file.MovePoint2 = ReadPlace(lines);
}

void ReadRequests(KvtLines& lines, CKvtFile& file) {
    lines.SkipTo("Start Requests");
    file.CoordGridRequested = lines.ReadBoolean();
    file.CoordTableRequested = lines.ReadBoolean();
    file.DiagonalsRequested = lines.ReadBoolean();
    file.FrameRequested = lines.ReadBoolean();
    file.TrueLengthsRequested = lines.ReadBoolean();
}

void ReadLabel(KvtLines& lines, CKvtFile& file) {
    lines.SkipTo("Start LabelPoint");
    const std::string_view first = lines.ReadLine();
    if (KvtLines::IsNumber(first)) {
        C3DPoint point;
        point.x = lines.Number(first);
        point.y = lines.ReadNumber();
        point.z = lines.ReadNumber();
        file.LabelPoint = point;
    }
}

void ReadDimensions(KvtLines& lines, CKvtFile& file) {
    constexpr int Lowest = -1000000000;
    constexpr int Highest = 1000000000;
    lines.SkipTo("Start Dimensions");
    CDimensions dimensions;
    for (std::string_view line = lines.ReadLine(); line != "End Dimensions"; line = lines.ReadLine()) {
        CDimension dimension;
        dimension.PointNo1 = lines.Integer(line, Lowest, Highest);
        for (int* part : {&dimension.PointNo2, &dimension.ListNo1, &dimension.ListNo2, &dimension.SurfaceNo1,
                          &dimension.SurfaceNo2}) {
            *part = lines.ReadInteger(Lowest, Highest);
        }
        if (dimensions.Count() == MostDimensions) {
            lines.RefuseLine("there are more than " + std::to_string(MostDimensions) + " dimensions");
        }
        dimensions.Add(dimension);
    }
    if (dimensions.Count() > 0) {
        file.DimensionList = dimensions;
    }
}

void ReadComments(KvtLines& lines, CKvtFile& file) {
    lines.SkipTo("Start Comments");
    file.Comment1 = lines.ReadLine();
    file.Comment2 = lines.ReadLine();
    // The last line of every file: without it the file has been cut short, and the comments with it.
    if (!lines.SkipTo("End Comments")) {
        lines.RefuseEnd("End Comments");
    }
}

/// Stands behind the comments, where programs that do not know it have stopped reading. Their own files end
/// there: false for such a one.
bool ReadBranchMaterial(KvtLines& lines, CPatternSettings& settings, BranchOptions& branch) {
    branch = BranchOptions();
    if (!lines.SkipBlank()) {
        return false;
    }
    lines.Expect("Start Branch Material");
    settings.ThicknessA = lines.ReadNumber();
    settings.ThicknessB = lines.ReadNumber();
    branch.join = static_cast<BranchJoin>(lines.ReadInteger(SetInJoin, MeanToMeanJoin));
    branch.heelCompensation = lines.ReadBoolean();
    lines.Expect("End Branch Material");
    return true;
}

/// Stands behind the comments too. Files of programs that do not know it end there, and hold no mesh.
void ReadMesh(KvtLines& lines, ImportedMesh& mesh) {
    mesh = ImportedMesh();
    if (!lines.SkipBlank()) {
        return;
    }
    lines.Expect("Start Imported Mesh");
    const int count = lines.ReadInteger(2, std::numeric_limits<int>::max());
    // A pair of points takes at least six lines of a digit and its end: room is made for what is there.
    constexpr std::size_t LeastPair = 12;
    const std::size_t room = std::min(static_cast<std::size_t>(count), lines.BytesLeft() / LeastPair + 1);
    CRuleSurf surface;
    for (PointList* const list : {&surface.List1, &surface.List2}) {
        *list = std::make_shared<C3DPoints>();
        (*list)->Reserve(room);
        for (int i = 0; i < count; ++i) {
            const double x = lines.ReadExactly();
            const double y = lines.ReadExactly();
            (*list)->Add({x, y, lines.ReadExactly(), CornerRuleStation});
        }
    }
    lines.Expect("End Imported Mesh");
    mesh.DXFMesh = surface;
    mesh.DXFMeshOK = true;
}

/// All that follows the header.
void ReadSections(KvtLines& lines, CKvtFile& file) {
    ReadView(lines, file);
    ReadSettings(lines, file);
    ReadParameters(lines, file);
    KvtControls& controls = file.Controls;
    ReadOptions(lines, "Angle Option Buttons", {&controls.optTopAngle, &controls.optBaseAngle});
    ReadOptions(lines, "Pattern Select Option Buttons", {&controls.optPatternSelect});
    ReadOptions(lines, "Flush Side Option Buttons", {&controls.optFlushSide});
    ReadPlacement(lines, file);
    ReadRequests(lines, file);
    ReadLabel(lines, file);
    ReadDimensions(lines, file);
    ReadComments(lines, file);
    file.BranchMissing = file.Branch && !ReadBranchMaterial(lines, file.PatternSettings, *file.Branch);
    if (file.Mesh) {
        ReadMesh(lines, *file.Mesh);
    }
}

/// The numbers of a version between its points, 0 for what is none.
std::vector<int> VersionNumbers(std::string_view version) {
    std::vector<int> numbers;
    while (true) {
        const std::size_t point = std::min(version.find('.'), version.size());
        int number = 0;
        const auto end = std::from_chars(version.data(), version.data() + point, number);
        numbers.push_back(end.ec == std::errc::result_out_of_range ? std::numeric_limits<int>::max()
                                                                   : number);
        if (point == version.size()) {
            return numbers;
        }
        version.remove_prefix(point + 1);
    }
}

}  // namespace

void CKvtFile::ParseHeader(const std::string& text) {
    KvtLines lines(text);
    korvet::ReadHeader(lines, *this);
}

void CKvtFile::ReadHeader(const FileStore& files) {
    ParseHeader(DecodeText(files.Read(FileName, LargestParameterFile)));
}

void CKvtFile::Parse(const std::string& text, int defaultSegs) {
    KvtLines lines(text);
    PatternSettings = CPatternSettings();
    PatternSettings.segs = defaultSegs;
    ViewPoint = CViewPoint();
    korvet::ReadHeader(lines, *this);
    try {
        ReadSections(lines, *this);
    } catch (const ParameterFileError& error) {
        if (IsOfLaterVersion()) {
            throw ParameterFileError("the file is of the later version " + std::string(Excerpt(Version)) +
                                     ", " + error.what());
        }
        throw;
    }
}

void CKvtFile::RequireReadable(const std::string& bytes) const {
    CKvtFile again = *this;
    try {
        if (bytes.size() > LargestParameterFile) {
            throw ParameterFileError("it is larger than " + std::to_string(LargestParameterFile) + " bytes");
        }
        again.Parse(DecodeText(bytes), MinSegs);
    } catch (const ParameterFileError& error) {
        throw FileError(FileName + " cannot be written, as it could not be opened again: " + error.what());
    }
}

bool CKvtFile::IsOfLaterVersion() const {
    return VersionNumbers(Version) > VersionNumbers(ProgramVersion);
}

void CKvtFile::LoadFile(const FileStore& files, int defaultSegs) {
    const std::string bytes = files.Read(FileName, LargestParameterFile);
    Fingerprint = FingerprintOf(bytes);
    Parse(DecodeText(bytes), defaultSegs);
}

/// The bytes one after the other by FNV-1a.
std::uint64_t FingerprintOf(std::string_view bytes) {
    std::uint64_t fingerprint = 0xcbf29ce484222325;
    for (const char byte : bytes) {
        fingerprint = (fingerprint ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    }
    return fingerprint;
}

std::optional<std::uint64_t> FingerprintOfFile(const FileStore& files, const std::string& path) {
    try {
        return FingerprintOf(files.Read(path, LargestParameterFile));
    } catch (const FileError&) {
        return std::nullopt;
    }
}

}  // namespace korvet
