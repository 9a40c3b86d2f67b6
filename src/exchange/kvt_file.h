// The parameter file (*.Kvt): what the user typed, the settings and the view, never the model itself.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/branch_options.h"
#include "core/dimensions.h"
#include "core/file_store.h"
#include "core/imported_mesh.h"
#include "core/pattern_settings.h"
#include "core/points.h"
#include "display/view_point.h"
#include "exchange/mesh_dxf.h"

namespace korvet {

/// A parameter file that can't be read; what() names the line and says what is wrong with it.
class ParameterFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The header of the file is at fault behind its first line.
class HeaderError : public ParameterFileError {
  public:
    using ParameterFileError::ParameterFileError;
};

/// The file was written by another product.
class ForeignProductError : public ParameterFileError {
  public:
    using ParameterFileError::ParameterFileError;
};

/// The controls of a fitting window as a file holds them. Each list has the window's count of such controls.
/// For saving every item is set; after loading an item is set where the file had a value for it.
struct KvtControls {
    std::vector<std::optional<std::string>> txtParameter;
    std::vector<std::optional<bool>> optTopAngle;
    std::vector<std::optional<bool>> optBaseAngle;
    std::vector<std::optional<bool>> optPatternSelect;
    std::vector<std::optional<bool>> optFlushSide;
};

/// More dimensions than anybody sets. A file that holds more is refused.
inline constexpr std::size_t MostDimensions = 10000;

/// No parameter file comes near this; what does is none. Any mesh that can be imported can be saved and
/// opened again: it takes no more room in a parameter file than in a drawing.
inline constexpr std::size_t LargestParameterFile = LargestDrawing + (16U << 20U);

struct CKvtFile {
    std::string Comment1;
    std::string Comment2;
    std::string Version;  ///< of the file that was read, "3.3.3"
    int VersionNo = 0;    ///< its three digits
    int SubVersion = 0;
    int SubVersionIndex = 0;
    std::optional<CDimensions> DimensionList;  ///< stays unset when a file holds no dimension
    bool TrueLengthsRequested = false;
    bool CoordTableRequested = false;
    bool CoordGridRequested = false;
    bool DiagonalsRequested = false;
    bool FrameRequested = false;
    std::optional<C3DPoint> LabelPoint;
    C3DPoint MovePoint1;
    C3DPoint MovePoint2;
    C3DPoint RotationPoint;
    double RotationAngle = 0;  ///< radians
    std::string Product;
    std::string Category;  ///< catalogue name of the fitting
    CPatternSettings PatternSettings;

    /// Set for a fitting of a branch and a trunk, before loading too: its files hold both thicknesses and
    /// these.
    std::optional<BranchOptions> Branch;

    /// After loading such a fitting: the file ends before thicknesses and join, as files of other programs
    /// do.
    bool BranchMissing = false;

    /// Set for an imported mesh, before loading too: its files hold the mesh itself.
    std::optional<ImportedMesh> Mesh;
    CViewPoint ViewPoint;
    int Dtype = 0;
    std::string FileName;
    std::uint64_t Fingerprint = 0;  ///< of the bytes that LoadFile has read or SaveFile has written
    KvtControls Controls;

    /// The whole file as text, CR LF at the end of each line; numbers with the given decimal mark.
    [[nodiscard]] std::string Compose(char decimalMark) const;

    /// Composes the file and puts it in the place of FileName in one step, flushed to the disk. Throws
    /// FileError, also for a file that LoadFile would not read again.
    void SaveFile(FileStore& files, char decimalMark);

    /// Reads FileName from the header to the comments into the members; Controls must have the window's
    /// counts. PatternSettings and ViewPoint start anew, with `defaultSegs` segments. After an error
    /// everything that was read before it stands in the members. Throws FileError, ForeignProductError,
    /// HeaderError and ParameterFileError.
    void LoadFile(const FileStore& files, int defaultSegs);

    /// The same from the text of a file. What is wrong in one of a later version names that version.
    void Parse(const std::string& text, int defaultSegs);

    /// Sees to it that the bytes can be loaded into a file with the controls and sections of this one. Throws
    /// FileError.
    void RequireReadable(const std::string& bytes) const;

    /// Whether the file that was read is of a later version than this program writes.
    [[nodiscard]] bool IsOfLaterVersion() const;

    /// Reads only the header of FileName: Product, the version and Category. For choosing the window.
    void ReadHeader(const FileStore& files);

    /// The same from the text of a file.
    void ParseHeader(const std::string& text);
};

/// A number that tells the bytes of one file from those of another.
std::uint64_t FingerprintOf(std::string_view bytes);

/// The same of the file at a path; nothing when it can't be read.
std::optional<std::uint64_t> FingerprintOfFile(const FileStore& files, const std::string& path);

}  // namespace korvet
