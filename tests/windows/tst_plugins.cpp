#include <QJsonObject>
#include <QPluginLoader>
#include <QtTest>

/// Qt's plugins, which are part of the program.
class TestPlugins : public QObject
{
    Q_OBJECT

private slots:
    void eachIsRegisteredOnce();
};

namespace {

QStringList registeredPlugins()
{
    QStringList names;
    for (const QStaticPlugin &plugin : QPluginLoader::staticPlugins()) {
        names.append(plugin.metaData().value("className").toString());
    }
    names.sort();
    return names;
}

} // namespace

void TestPlugins::eachIsRegisteredOnce()
{
    QStringList names = registeredPlugins();
    QVERIFY(names.contains("QWindowsIntegrationPlugin"));
    const QString all = names.join(' ');
    QVERIFY2(names.removeDuplicates() == 0, qPrintable(all));
}

QTEST_MAIN(TestPlugins)
#include "tst_plugins.moc"
