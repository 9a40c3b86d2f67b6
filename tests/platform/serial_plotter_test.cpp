// Plots sent by a serial port: pairs of pseudo-terminals stand for the line, and the other end for the
// plotter.
#include "platform/serial_plotter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifndef _WIN32
#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSerialPort>
#include <QTemporaryDir>
#include <QTimer>
#include <thread>

#include "tests/support/recording_desktop.h"

namespace korvet {
namespace {

using namespace std::chrono_literals;
using testing::EndsWith;
using testing::HasSubstr;

/// Bytes of every kind, the ones that a line could take for signs of its own too.
std::string PlotOf(std::size_t size) {
    std::string plot;
    for (std::size_t i = 0; plot.size() < size; ++i) {
        plot += "PA" + std::to_string(i * 7919 % 30011) + "," + static_cast<char>(i % 256) + ";\r\n";
    }
    plot.resize(size);
    return plot;
}

/// What there is to read now at the end of a line.
std::string ReadNow(int end) {
    ::fcntl(end, F_SETFL, O_NONBLOCK);
    std::string bytes;
    std::array<char, 4096> part{};
    for (ssize_t got = 0; (got = ::read(end, part.data(), part.size())) > 0;) {
        bytes.append(part.data(), static_cast<std::size_t>(got));
    }
    return bytes;
}

/// A plotter at the far end of a line, as far as it gets.
class FarEnd {
  public:
    FarEnd() {
        std::array<char, 100> name{};
        if (::openpty(&master_, &slave_, name.data(), nullptr, nullptr) != 0) {
            ADD_FAILURE() << "no pseudo-terminal";
        }
        port = name.data();
    }
    ~FarEnd() { HangUp(); }
    FarEnd(const FarEnd&) = delete;
    FarEnd& operator=(const FarEnd&) = delete;

    void HangUp() {
        for (int* const end : {&slave_, &master_}) {
            if (*end >= 0) {
                ::close(*end);
                *end = -1;
            }
        }
    }

    void Write(char sign) const { EXPECT_EQ(::write(master_, &sign, 1), 1); }
    [[nodiscard]] std::string Read() const { return ReadNow(master_); }

    [[nodiscard]] termios Settings() const {
        termios settings{};
        ::tcgetattr(slave_, &settings);
        return settings;
    }

    std::string port;

  private:
    int master_ = -1;
    int slave_ = -1;
};

/// Two ends of a line in a process of its own.
class Line {
  public:
    Line() {
        process_.start("socat", {"-d", "-d", "pty,raw,echo=0,link=" + Path("near"),
                                 "pty,raw,echo=0,link=" + Path("far")});
        EXPECT_TRUE(process_.waitForStarted()) << "socat is not installed";
        for (int i = 0; i < 1000 && !(QFile::exists(Path("near")) && QFile::exists(Path("far"))); ++i) {
            std::this_thread::sleep_for(10ms);
        }
        far_ = ::open(Path("far").toStdString().c_str(), O_RDWR | O_NOCTTY);
    }
    ~Line() {
        ::close(far_);
        process_.kill();
        process_.waitForFinished();
    }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    [[nodiscard]] std::string Near() const { return Path("near").toStdString(); }
    [[nodiscard]] std::string Read() const { return ReadNow(far_); }

  private:
    [[nodiscard]] QString Path(const char* name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
    QProcess process_;
    int far_ = -1;
};

class SerialPlotterTest : public testing::Test {
  protected:
    SerialPlotterTest() {
        static int count = 1;
        static std::array<char*, 2> words = {name, nullptr};
        static const QCoreApplication* const application =
            QCoreApplication::instance() == nullptr ? new QCoreApplication(count, words.data()) : nullptr;
        static_cast<void>(application);
    }

    PlotSent Send(const std::string& plot) { return SendBy(plotter, plot); }

    /// The same by somebody with little patience.
    PlotSent SendHastily(const std::string& plot) {
        SerialPlotter hasty(settings, 300ms);
        return SendBy(hasty, plot);
    }

    PlotSent SendBy(SerialPlotter& sender, const std::string& plot) {
        return sender.Send({plot, ""}, [&](std::size_t taken, std::size_t whole) {
            EXPECT_EQ(whole, plot.size());
            EXPECT_GE(taken, lastTaken);
            lastTaken = taken;
            return !onProgress || onProgress();
        });
    }

    static inline char name[] = "platform_tests";
    MemorySettings settings;
    SerialPlotter plotter{settings};
    std::function<bool()> onProgress;
    std::size_t lastTaken = 0;
};

TEST_F(SerialPlotterTest, ThePortIsTheSecondOneUntilAnotherIsSet) {
    EXPECT_EQ(plotter.Port(), (PlotterPort{"/dev/ttyS1", Handshake::None}));
    plotter.SetPort({"/dev/ttyUSB0", Handshake::RtsCts});
    EXPECT_EQ(settings.values.at("PlotterPort"), "/dev/ttyUSB0");
    EXPECT_EQ(settings.values.at("PlotterHandshake"), "2");
    EXPECT_EQ(SerialPlotter(settings).Port(), (PlotterPort{"/dev/ttyUSB0", Handshake::RtsCts}));
    for (const char* rubbish : {"", "3", "-1", "x"}) {
        settings.values["PlotterHandshake"] = rubbish;
        EXPECT_EQ(plotter.Port()->handshake, Handshake::None);
    }
}

TEST_F(SerialPlotterTest, TheFarEndReceivesTheExactBytes) {
    const Line line;
    const std::string plot = PlotOf(100000);
    plotter.SetPort({line.Near(), Handshake::None});
    std::string received;
    onProgress = [&] {
        received += line.Read();
        return true;
    };
    const PlotSent sent = Send(plot);
    EXPECT_EQ(sent.end, PlotSent::End::All) << sent.reason;
    for (int i = 0; i < 1000 && received.size() < plot.size(); ++i) {
        received += line.Read();
        std::this_thread::sleep_for(10ms);
    }
    EXPECT_TRUE(received == plot) << received.size();
}

TEST_F(SerialPlotterTest, TheLineHasItsSpeedAndItsBits) {
    FarEnd far;
    plotter.SetPort({far.port, Handshake::None});
    onProgress = [&] {
        const termios line = far.Settings();
        EXPECT_EQ(::cfgetospeed(&line), static_cast<speed_t>(B9600));
        EXPECT_EQ(line.c_cflag & static_cast<tcflag_t>(CSIZE | PARENB | CSTOPB), static_cast<tcflag_t>(CS8));
        return true;
    };
    EXPECT_EQ(Send(PlotOf(2000)).end, PlotSent::End::All);
    EXPECT_EQ(far.Read(), PlotOf(2000));
}

TEST_F(SerialPlotterTest, AReaderThatStopsIsGivenUp) {
    FarEnd far;
    plotter.SetPort({far.port, Handshake::None});
    const PlotSent sent = SendHastily(PlotOf(500000));
    EXPECT_EQ(sent.end, PlotSent::End::Failed);
    EXPECT_THAT(sent.reason, HasSubstr(": the plotter takes no more; "));
    EXPECT_THAT(sent.reason, EndsWith(" of 500000 bytes have gone out"));
    const std::string received = far.Read();
    EXPECT_LT(received.size(), 500000U);
    EXPECT_TRUE(PlotOf(500000).starts_with(received));
}

TEST_F(SerialPlotterTest, ALineThatIsUnpluggedFails) {
    FarEnd far;
    plotter.SetPort({far.port, Handshake::None});
    int looks = 0;
    onProgress = [&] {
        if (++looks == 2) {
            far.HangUp();
        }
        return true;
    };
    const PlotSent sent = Send(PlotOf(500000));
    EXPECT_EQ(sent.end, PlotSent::End::Failed);
    EXPECT_FALSE(sent.reason.empty());
    EXPECT_THAT(sent.reason, testing::Not(HasSubstr("takes no more")));
}

TEST_F(SerialPlotterTest, APortThatIsNotThereFailsWithTheReasonOfTheSystem) {
    for (const char* port : {"/dev/no-such-port", "", "/"}) {
        plotter.SetPort({port, Handshake::None});
        const PlotSent sent = Send("IN;");
        EXPECT_EQ(sent.end, PlotSent::End::Failed) << port;
        EXPECT_FALSE(sent.reason.empty());
    }
    plotter.SetPort({"/dev/no-such-port", Handshake::None});
    EXPECT_THAT(Send("IN;").reason, HasSubstr("No such file or directory"));
}

TEST_F(SerialPlotterTest, APortThatAnotherHasFailsWithTheReasonOfTheSystem) {
    FarEnd far;
    QSerialPort other(QString::fromStdString(far.port));
    ASSERT_TRUE(other.open(QIODevice::ReadWrite));
    plotter.SetPort({far.port, Handshake::None});
    const PlotSent sent = Send("IN;");
    EXPECT_EQ(sent.end, PlotSent::End::Failed);
    EXPECT_THAT(sent.reason, testing::ContainsRegex("^pts/[0-9]+: .+"));
    EXPECT_EQ(far.Read(), "");
}

TEST_F(SerialPlotterTest, CancelStopsTheSending) {
    FarEnd far;
    plotter.SetPort({far.port, Handshake::None});
    int looks = 0;
    onProgress = [&] { return ++looks < 3; };
    EXPECT_EQ(Send(PlotOf(500000)).end, PlotSent::End::Stopped);
    EXPECT_EQ(looks, 3);
}

TEST_F(SerialPlotterTest, AFullPlotterHoldsTheLineAndLetsItGoOn) {
    FarEnd far;
    plotter.SetPort({far.port, Handshake::XonXoff});
    const std::string plot = PlotOf(60000);
    constexpr char Xoff = 0x13;
    constexpr char Xon = 0x11;
    std::string received;
    int looks = 0;
    onProgress = [&] {
        ++looks;
        if (looks == 1) {
            far.Write(Xoff);
        } else if (looks == 5) {
            far.Write(Xon);
        }
        received += far.Read();
        return true;
    };
    const PlotSent sent = Send(plot);
    received += far.Read();
    EXPECT_EQ(sent.end, PlotSent::End::All) << sent.reason;
    EXPECT_GE(looks, 5);
    EXPECT_TRUE(received == plot) << received.size();
}

TEST_F(SerialPlotterTest, TheProgramGoesOnMeanwhile) {
    FarEnd far;
    plotter.SetPort({far.port, Handshake::None});
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { ++ticks; });
    timer.start(10);
    EXPECT_EQ(SendHastily(PlotOf(500000)).end, PlotSent::End::Failed);
    EXPECT_GT(ticks, 5);
}

}  // namespace
}  // namespace korvet

#endif
