// The way of a drawing to the pen plotter.
#pragma once

#include <string>

#include "exchange/dxf.h"
#include "window/fitting_window.h"

namespace korvet {

/// Makes a plot of `drawing`, which is what an export of the window has made, in the file `plotFile`, and
/// sends it; where the program has no line to a plotter the file is all. The drawing goes through the
/// transfer file, which one copy of the program uses at a time. Refuses, with a message, when the plot was
/// not sent whole; the plot file stays. Throws what WriteDXF does.
Outcome PlotDrawing(CFittingWindow& window, CDXF drawing, const std::string& plotFile);

/// Turns the transfer file into the plot file and sends it; without a transfer file nothing is done, and
/// nothing is said. Says "File sent", or what went wrong.
Outcome ExportHPGL(CFittingWindow& window, const std::string& plotFile);

/// Sends a plot file by the program's line, with a look at the progress. Refuses, with a message unless the
/// user has stopped it, when not every byte was taken. Throws FileError.
Outcome SendPlot(WindowContext& context, const std::string& plotFile);

/// Writes the batch file that takes `plotFile` to the plotter, and returns its path. Throws FileError.
std::string WritePlotBatch(const WindowContext& context, const std::string& plotFile);

}  // namespace korvet
