#include "desktop/command_line.h"

#include <QTest>

#include "core/constants.h"
#include "tests/desktop/desktop_test.h"

namespace korvet::desktop {

class CommandLineTest : public QObject {
    Q_OBJECT

  private slots:
    void NamesAreFiles() {
        const CommandLine line = ReadCommandLine({"a.Kvt", "folder/b.Kvt"});
        QCOMPARE(line.files, QStringList({"a.Kvt", "folder/b.Kvt"}));
        QVERIFY(!line.open && line.text.isEmpty() && line.error.isEmpty());
    }

    void OpenAsksForTheRunningProgram() {
        const CommandLine line = ReadCommandLine({"--open", "a.Kvt"});
        QVERIFY(line.open && line.error.isEmpty());
        QCOMPARE(line.files, QStringList({"a.Kvt"}));
    }

    void BehindTheDashesAllIsAFile() {
        const CommandLine line = ReadCommandLine({"--", "--open", "-h", "--"});
        QCOMPARE(line.files, QStringList({"--open", "-h", "--"}));
        QVERIFY(!line.open && line.text.isEmpty());
    }

    void VersionIsThatOfTheSources() {
        const QString version = QString::fromStdString("korvet " + std::string(ProgramVersion) + "\n");
        QCOMPARE(ReadCommandLine({"--version"}).text, version);
    }

    void HelpNamesEveryOption() {
        for (const char* option : {"--help", "-h"}) {
            const QString help = ReadCommandLine({option}).text;
            for (const char* named : {"--open", "--help", "--version", "FILE"}) {
                QVERIFY2(help.contains(QString::fromLatin1(named)), named);
            }
        }
    }

    void UnknownOptionIsNamed() {
        for (const char* option : {"--opened", "-o", "-"}) {
            const CommandLine line = ReadCommandLine({option, "a.Kvt"});
            QVERIFY2(line.error.contains(QString::fromLatin1(option)), option);
        }
    }
};

static const Registered<CommandLineTest> registeredCommandLineTest("CommandLineTest");

}  // namespace korvet::desktop

#include "command_line_test.moc"
