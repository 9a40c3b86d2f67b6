// The plot file: a drawing in the instructions of a pen plotter.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/file_store.h"
#include "core/rule_surf.h"
#include "exchange/transfer_file.h"

namespace korvet {

/// What a drawing of another unit than millimetres is taken as by the plotter: inches.
inline constexpr std::int16_t PrintMillimetres = 6;

/// Turns an exported drawing into a plot. It starts from the entities of the drawing and not from the
/// surfaces, which only tell where the drawing lies.
struct CHPGL {
    CRuleSurfs SurfaceList;                      ///< of the drawing
    std::int16_t PrintUnits = PrintMillimetres;  ///< of the drawing: PrintMillimetres, or else inches
    std::string FileName;                        ///< the plot file

    /// The plot of a drawing that CDXF has written, one instruction a line, each line ended by CR LF. The
    /// frame about List1 and List2 of the surfaces has its lower left corner at the plotter's origin. Lines,
    /// arcs, texts and polylines of two points are drawn; other polylines are not. Positions are whole steps
    /// of the plotter, 40 to the millimetre or 1016 to the inch, halves to even.
    ///
    /// Texts stand at their points in the direction of their angles, in the size that the plotter has. They
    /// are in the plotter's own set of letters: another letter becomes a question mark, the mark that ends a
    /// text a blank, and control characters go. Throws TransferError for a drawing that is not whole, and
    /// ArithmeticError.
    [[nodiscard]] std::string Plot(std::string_view drawing) const;

    /// Hands the plot of a drawing's entities to a sink as it is made. What a fault leaves of it is of no
    /// use.
    void PlotTo(const TextSink& sink, const EntitySource& drawing) const;

    /// Writes that plot to FileName in one step. Throws as Plot does, and FileError.
    void WritePlot(FileStore& files, const EntitySource& drawing) const;

    /// Reads the drawing back from the transfer file and writes its plot to FileName in one step. False, and
    /// nothing is done, when there is no transfer file. Throws as Plot does, and FileError.
    bool TransferTempFile(FileStore& files, const std::string& transferFile) const;
};

/// The text of the batch file by which a command processor takes a plot file to the plotter.
std::string PlotBatch(std::string_view plotFile);

}  // namespace korvet
