// One plot on its way through a serial port.
#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QSerialPort>
#include <QTimer>
#include <chrono>

#include "window/plotter_line.h"

namespace korvet {

class SerialSending {
  public:
    /// `plot` must outlive it.
    SerialSending(const PlotterPort& port, const std::string& plot, const PlotterLine::Progress& progress,
                  std::chrono::milliseconds patience);

    /// Sends it all, and returns when the port has taken every byte, when the line fails or stalls, or when
    /// `progress` has had enough. Other events of the program are worked on meanwhile.
    PlotSent Run();

  private:
    void SetUp(const PlotterPort& port);
    void Feed();
    void Watch();
    void Look();
    void End(PlotSent::End end, const std::string& reason = {});
    [[nodiscard]] std::size_t Taken();

    QSerialPort line_;
    QEventLoop loop_;
    QTimer watch_;
    QElapsedTimer sinceTaken_;
    const std::string& plot_;
    PlotterLine::Progress progress_;
    std::chrono::milliseconds patience_;
    std::size_t handedOver_ = 0;  ///< bytes that the port object has been given
    std::size_t taken_ = 0;       ///< bytes that the system had taken at the last look
    bool watching_ = false;
    std::optional<PlotSent> sent_;
};

}  // namespace korvet
