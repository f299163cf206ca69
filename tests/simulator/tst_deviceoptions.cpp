#include "simulator/deviceoptions.h"

#include <QtTest>

Q_DECLARE_METATYPE(DeviceOptions)

class TestDeviceOptions : public QObject
{
    Q_OBJECT

private slots:
    void readsOptions_data();
    void readsOptions();
    void refusesWrongOptions_data();
    void refusesWrongOptions();
    void tellsWhenHelpIsWanted();
    void helpNamesEveryOption_data();
    void helpNamesEveryOption();
};

namespace {

/// The options as one text, so that a difference can be read.
QString described(const DeviceOptions &options)
{
    return QStringLiteral("header %1 crc %2 delay %3 split %4 garbage %5 chatter %6 mute %7 "
                          "seed %8 ports \"%9\" name \"%10\" play \"%11\" speed %12")
        .arg(QString::fromLatin1(bytesOf(options.startBytes).toHex(' ').toUpper()))
        .arg(options.withCrc)
        .arg(options.delayMs)
        .arg(options.split)
        .arg(options.garbageEvery)
        .arg(options.chatterHz)
        .arg(options.mute)
        .arg(options.seed)
        .arg(options.portsFolder, options.linkName, options.playFile)
        .arg(options.playSpeed);
}

DeviceArguments parse(const QString &arguments)
{
    return parseDeviceArguments(QStringList("tarnwick-device") +
                                arguments.split(' ', Qt::SkipEmptyParts));
}

} // namespace

void TestDeviceOptions::readsOptions_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<DeviceOptions>("expected");

    const auto row = [](const char *arguments, auto change) {
        DeviceOptions options;
        change(options);
        QTest::newRow(arguments) << QString(arguments) << options;
    };
    row("", [](DeviceOptions &) {});
    row("--header 5A,A5", [](DeviceOptions &o) { o.startBytes = {0x5A, 0xA5}; });
    row("--header 0b,C1", [](DeviceOptions &o) { o.startBytes = {0x0B, 0xC1}; });
    row("--header 0x12,0x34", [](DeviceOptions &o) { o.startBytes = {0x12, 0x34}; });
    row("--header=12,34", [](DeviceOptions &o) { o.startBytes = {0x12, 0x34}; });
    row("--crc", [](DeviceOptions &o) { o.withCrc = true; });
    row("--delay 0", [](DeviceOptions &o) { o.delayMs = 0; });
    row("--delay 60000", [](DeviceOptions &o) { o.delayMs = 60000; });
    row("--split", [](DeviceOptions &o) { o.split = true; });
    row("--garbage 3", [](DeviceOptions &o) { o.garbageEvery = 3; });
    row("--chatter 1000", [](DeviceOptions &o) { o.chatterHz = 1000; });
    row("--mute", [](DeviceOptions &o) { o.mute = true; });
    row("--seed 4294967295", [](DeviceOptions &o) { o.seed = 4294967295U; });
    row("--seed 0", [](DeviceOptions &o) { o.seed = 0; });
    row("--ports /a/b", [](DeviceOptions &o) { o.portsFolder = "/a/b"; });
    row("--name tunnel", [](DeviceOptions &o) { o.linkName = "tunnel"; });
    row("--play a/run.jsonl", [](DeviceOptions &o) { o.playFile = "a/run.jsonl"; });
    row("--speed 2.5", [](DeviceOptions &o) { o.playSpeed = 2.5; });
    row("--crc --mute --delay 5 --delay 7", [](DeviceOptions &o) {
        o.withCrc = true;
        o.mute = true;
        o.delayMs = 7;
    });
}

void TestDeviceOptions::readsOptions()
{
    QFETCH(QString, arguments);
    QFETCH(DeviceOptions, expected);
    const DeviceArguments line = parse(arguments);
    QCOMPARE(line.error, QString());
    QVERIFY(!line.helpWanted);
    QCOMPARE(described(line.options), described(expected));
}

void TestDeviceOptions::refusesWrongOptions_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");

    const auto row = [](const char *arguments, const char *named) {
        QTest::newRow(arguments) << QString(arguments) << QString(named);
    };
    row("--loud", "loud");
    row("-x", "x");
    row("stray", "stray");
    row("--header", "header");
    row("--header 5A", "--header");
    row("--header 5A,A5,00", "--header");
    row("--header 5A,1A5", "--header");
    row("--header 5A,G5", "--header");
    row("--header=", "--header");
    row("--delay", "delay");
    row("--delay x", "--delay");
    row("--delay -1", "--delay");
    row("--delay 60001", "--delay");
    row("--delay 1.5", "--delay");
    row("--garbage 0", "--garbage");
    row("--garbage 2147483648", "--garbage");
    row("--chatter 0", "--chatter");
    row("--chatter 1001", "--chatter");
    row("--seed 4294967296", "--seed");
    row("--seed -1", "--seed");
    row("--crc=1", "crc");
    row("--play=", "--play");
    row("--speed 0", "--speed");
    row("--speed -1", "--speed");
    row("--speed 1000001", "--speed");
    row("--speed nan", "--speed");
    row("--speed fast", "--speed");
    row("--ports=", "--ports");
    row("--name=", "--name");
    row("--name a/b", "--name");
    row("--name ..", "--name");
    row("--name .hidden", "--name");
}

void TestDeviceOptions::refusesWrongOptions()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    const QString error = parse(arguments).error;
    QVERIFY2(error.contains(named), qPrintable(error));
}

void TestDeviceOptions::tellsWhenHelpIsWanted()
{
    QVERIFY(parse("--help").helpWanted);
    QVERIFY(parse("-h").helpWanted);
    QVERIFY(!parse("--crc").helpWanted);
}

void TestDeviceOptions::helpNamesEveryOption_data()
{
    QTest::addColumn<QString>("option");
    for (const char *option : {"header", "crc", "delay", "split", "garbage", "chatter", "mute",
                               "seed", "help", "play", "speed", "ports", "name"}) {
        QTest::newRow(option) << "--" + QString(option);
    }
}

void TestDeviceOptions::helpNamesEveryOption()
{
    QFETCH(QString, option);
    QVERIFY(deviceHelpText().contains(option));
}

QTEST_GUILESS_MAIN(TestDeviceOptions)
#include "tst_deviceoptions.moc"
