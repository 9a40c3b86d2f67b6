// A line to a plotter that is none, and the folder of drawings on their way, for tests.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "window/plotter_line.h"
#include "window/transfer_place.h"

namespace korvet {

class TestTransferPlace final : public TransferPlace {
  public:
    bool busy = false;             ///< another copy of the program has it
    std::weak_ptr<void> lastHold;  ///< alive while it is held

    [[nodiscard]] std::string PathOf(const std::string& name) const override { return "work/" + name; }
    [[nodiscard]] std::shared_ptr<void> Hold() override {
        std::shared_ptr<void> held = busy ? nullptr : std::make_shared<int>();
        lastHold = held;
        return held;
    }
};

class RecordingPlotter final : public PlotterLine {
  public:
    std::vector<std::string> ports = {"/dev/ttyS0", "/dev/ttyS1"};
    std::optional<PlotterPort> port = PlotterPort{"/dev/ttyS1", Handshake::None};
    std::vector<PlotJob> jobs;               ///< that were sent, in order
    PlotSent::End end = PlotSent::End::All;  ///< how they end
    std::function<void()> onSend;            ///< a look at the program meanwhile

    [[nodiscard]] std::vector<std::string> Ports() const override { return ports; }
    [[nodiscard]] std::optional<PlotterPort> Port() const override { return port; }
    void SetPort(const PlotterPort& chosen) override { port = chosen; }
    PlotSent Send(const PlotJob& job, const Progress& progress) override {
        jobs.push_back(job);
        if (onSend) {
            onSend();
        }
        if (!progress(job.plot.size() / 2, job.plot.size())) {
            return {PlotSent::End::Stopped};
        }
        return {end, end == PlotSent::End::Failed ? "No such file or directory" : ""};
    }
};

}  // namespace korvet
