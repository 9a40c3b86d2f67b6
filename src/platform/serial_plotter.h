// A plotter on a serial line of the machine.
#pragma once

#include <chrono>

#include "frame/settings_store.h"
#include "window/plotter_line.h"

namespace korvet {

/// Sends by a serial port at 9600 baud, no parity, 8 data bits, 1 stop bit; on Windows by the batch file. The
/// program goes on with its events meanwhile.
class SerialPlotter final : public PlotterLine {
  public:
    /// A line that takes no byte for the time `patience` has failed.
    explicit SerialPlotter(SettingsStore& settings,
                           std::chrono::milliseconds patience = std::chrono::seconds(30));

    [[nodiscard]] std::vector<std::string> Ports() const override;
    [[nodiscard]] std::optional<PlotterPort> Port() const override;
    void SetPort(const PlotterPort& port) override;
    PlotSent Send(const PlotJob& job, const Progress& progress) override;

  private:
    SettingsStore& settings_;
    std::chrono::milliseconds patience_;
};

}  // namespace korvet
