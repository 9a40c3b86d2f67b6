// Port: the line to the plotter.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace korvet {

/// How a plotter says that it can take no more for a while.
enum class Handshake : std::size_t { None = 0, XonXoff = 1, RtsCts = 2 };

/// Where the plotter is, as the user has set it.
struct PlotterPort {
    std::string name;  ///< a path, or the system's name of a serial port
    Handshake handshake = Handshake::None;
    bool operator==(const PlotterPort&) const = default;
};

/// A plot to be sent.
struct PlotJob {
    std::string plot;       ///< the bytes for the plotter
    std::string batchFile;  ///< by which a command processor sends them
};

/// How a sending ended.
struct PlotSent {
    enum class End { All, Stopped, Failed };
    End end = End::All;
    std::string reason = {};  ///< of a failure, as the system tells it
};

class PlotterLine {
  public:
    PlotterLine() = default;
    PlotterLine(const PlotterLine&) = delete;
    PlotterLine& operator=(const PlotterLine&) = delete;
    virtual ~PlotterLine() = default;

    /// The ports that the machine has now. There may be others, which only a path tells.
    [[nodiscard]] virtual std::vector<std::string> Ports() const = 0;

    /// The port that is used; nothing where the user has no choice.
    [[nodiscard]] virtual std::optional<PlotterPort> Port() const = 0;

    /// Remembers the port for this and later runs.
    virtual void SetPort(const PlotterPort& port) = 0;

    /// Is told how many bytes of how many the line has taken, several times a second; false stops the
    /// sending.
    using Progress = std::function<bool(std::size_t taken, std::size_t whole)>;

    /// Sends a plot. All is said only when the line has taken every byte.
    virtual PlotSent Send(const PlotJob& job, const Progress& progress) = 0;
};

}  // namespace korvet
