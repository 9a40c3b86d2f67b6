#include "platform/serial_sending.h"

#include <sys/ioctl.h>

#include <algorithm>
#include <utility>

namespace korvet {
namespace {

constexpr std::size_t Portion = 1024;               // bytes handed over at a time
constexpr std::chrono::milliseconds LookEvery{50};  // at the progress

/// Bytes that the system has taken and not yet put on the line.
std::size_t WaitingInSystem(QSerialPort& line) {
    int waiting = 0;
    return ::ioctl(static_cast<int>(line.handle()), TIOCOUTQ, &waiting) == 0 && waiting > 0
               ? static_cast<std::size_t>(waiting)
               : 0;
}

QSerialPort::FlowControl FlowControlOf(Handshake handshake) {
    switch (handshake) {
        case Handshake::XonXoff:
            return QSerialPort::SoftwareControl;
        case Handshake::RtsCts:
            return QSerialPort::HardwareControl;
        default:
            return QSerialPort::NoFlowControl;
    }
}

}  // namespace

SerialSending::SerialSending(const PlotterPort& port, const std::string& plot,
                             const PlotterLine::Progress& progress, std::chrono::milliseconds patience)
    : plot_(plot), progress_(progress), patience_(patience) {
    SetUp(port);
}

void SerialSending::SetUp(const PlotterPort& port) {
    line_.setPortName(QString::fromStdString(port.name));
    line_.setBaudRate(QSerialPort::Baud9600);
    line_.setDataBits(QSerialPort::Data8);
    line_.setParity(QSerialPort::NoParity);
    line_.setStopBits(QSerialPort::OneStop);
    line_.setFlowControl(FlowControlOf(port.handshake));
    QObject::connect(&line_, &QSerialPort::bytesWritten, &loop_, [this] { Feed(); });
    // What the plotter says is not wanted, but must not pile up.
    QObject::connect(&line_, &QSerialPort::readyRead, &loop_, [this] { line_.readAll(); });
    QObject::connect(&line_, &QSerialPort::errorOccurred, &loop_, [this](QSerialPort::SerialPortError error) {
        if (error != QSerialPort::NoError) {
            End(PlotSent::End::Failed,
                line_.portName().toStdString() + ": " + line_.errorString().toStdString());
        }
    });
    QObject::connect(&watch_, &QTimer::timeout, &loop_, [this] { Watch(); });
}

PlotSent SerialSending::Run() {
    // Read too, for that tells of a line that has gone, and of the signs of a plotter that is full.
    const bool open = line_.open(QIODevice::ReadWrite);
    if (!open) {
        End(PlotSent::End::Failed, line_.portName().toStdString() + ": " + line_.errorString().toStdString());
    }
    if (!sent_) {
        sinceTaken_.start();
        watch_.start(LookEvery);
        Feed();
        Watch();
        if (!sent_) {
            loop_.exec();
        }
    }
    if (sent_->end != PlotSent::End::All && line_.isOpen()) {
        line_.clear();  // closing would wait for what nobody takes
    }
    watch_.stop();
    line_.close();
    return *sent_;
}

/// Hands over the next bytes when the last ones are on their way.
void SerialSending::Feed() {
    if (line_.bytesToWrite() == 0 && handedOver_ < plot_.size()) {
        const std::size_t count = std::min(Portion, plot_.size() - handedOver_);
        const qint64 accepted = line_.write(plot_.data() + handedOver_, static_cast<qint64>(count));
        handedOver_ += accepted > 0 ? static_cast<std::size_t>(accepted) : 0;
    }
}

std::size_t SerialSending::Taken() {
    const std::size_t onTheWay = static_cast<std::size_t>(line_.bytesToWrite()) + WaitingInSystem(line_);
    return handedOver_ - std::min(handedOver_, onTheWay);
}

/// A look at the progress lets other events through, and the next look with them.
void SerialSending::Watch() {
    if (std::exchange(watching_, true)) {
        return;
    }
    Look();
    watching_ = false;
}

void SerialSending::Look() {
    const std::size_t taken = Taken();
    if (taken != taken_) {
        taken_ = taken;
        sinceTaken_.restart();
    }
    if (taken_ == plot_.size()) {
        End(PlotSent::End::All);
    } else if (!progress_(taken_, plot_.size())) {
        End(PlotSent::End::Stopped);
    } else if (sinceTaken_.hasExpired(patience_.count())) {
        End(PlotSent::End::Failed, line_.portName().toStdString() + ": the plotter takes no more; " +
                                       std::to_string(taken_) + " of " + std::to_string(plot_.size()) +
                                       " bytes have gone out");
    }
}

/// The first end counts.
void SerialSending::End(PlotSent::End end, const std::string& reason) {
    if (!sent_) {
        sent_ = PlotSent{end, reason};
        loop_.quit();
    }
}

}  // namespace korvet
