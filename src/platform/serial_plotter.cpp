#include "platform/serial_plotter.h"

#include <QSerialPortInfo>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN  // the rest has a macro called SetPort
#include <windows.h>

#include <filesystem>

#include <shellapi.h>
#else
#include "platform/serial_sending.h"
#endif

#include "core/number_text.h"

namespace korvet {
namespace {

constexpr const char* NameKey = "PlotterPort";
constexpr const char* HandshakeKey = "PlotterHandshake";
constexpr const char* FirstPort = "/dev/ttyS1";  // what the second one, COM2, is called here

}  // namespace

SerialPlotter::SerialPlotter(SettingsStore& settings, std::chrono::milliseconds patience)
    : settings_(settings), patience_(patience) {}

std::vector<std::string> SerialPlotter::Ports() const {
    std::vector<std::string> ports;
    for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) {
        ports.push_back(port.systemLocation().toStdString());
    }
    return ports;
}

void SerialPlotter::SetPort(const PlotterPort& port) {
    settings_.Set(NameKey, port.name);
    settings_.Set(HandshakeKey, std::to_string(static_cast<std::size_t>(port.handshake)));
}

#ifdef _WIN32

std::optional<PlotterPort> SerialPlotter::Port() const {
    return std::nullopt;  // the batch file names it
}

PlotSent SerialPlotter::Send(const PlotJob& job, const Progress&) {
    constexpr std::intptr_t LastFailure = 32;
    const auto started = reinterpret_cast<std::intptr_t>(
        ::ShellExecuteW(nullptr, L"open", std::filesystem::u8path(job.batchFile).c_str(), nullptr, nullptr,
                        SW_SHOWMAXIMIZED));
    if (started > LastFailure) {
        return {};
    }
    return {PlotSent::End::Failed, "the batch file could not be started"};
}

#else

std::optional<PlotterPort> SerialPlotter::Port() const {
    const auto handshake = ParseWholeNumber(settings_.Get(HandshakeKey).value_or("0"), 0, 2);
    return PlotterPort{settings_.Get(NameKey).value_or(FirstPort),
                       static_cast<Handshake>(handshake.value_or(0))};
}

PlotSent SerialPlotter::Send(const PlotJob& job, const Progress& progress) {
    return SerialSending(*Port(), job.plot, progress, patience_).Run();
}

#endif

}  // namespace korvet
