#include "plugin/mirovahr.h"
#include "tests/plugin/pluginini.h"

#include <QTest>

class TestUndatedBuild : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theVersionInformationHasNoBuildStamp();
};

void TestUndatedBuild::theVersionInformationHasNoBuildStamp()
{
    PluginIni::write("");
    const MirovaHR plugin;
    const QMap<QString, QString> expected = {
        {"TEPDB", "20.11.26"},
        {"VER", "1.5.3"},
        {"corvaType", "PLG.MH"},
    };
    QCOMPARE(plugin.getVerInfo(), expected);
}

QTEST_GUILESS_MAIN(TestUndatedBuild)
#include "tst_undatedbuild.moc"
