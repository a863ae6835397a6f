// The catalogue of messages: every text of the reading layer, in the name of every class that passes texts through
// tr().
#include "devicefeatureconfig.h"
#include "layerconfig.h"
#include "reading/document.h"
#include "screenconfigmanager.h"
#include "silkconfigmanager.h"
#include "slotconfigmanager.h"
#include "support.h"

#include <QTranslator>

using namespace LCD::MainConfigImpl;
using namespace LCD::MainConfigImpl::reading;

class TestTranslations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsThere_data();
    void everyTextIsThere();
};

void TestTranslations::everyTextIsThere_data()
{
    QTest::addColumn<QString>("className");
    for (const QMetaObject* of : {&DeviceFeatureConfig::staticMetaObject, &LayerConfigManager::staticMetaObject,
                                  &ScreenConfigManager::staticMetaObject, &SilkConfigManager::staticMetaObject,
                                  &SlotConfigManager::staticMetaObject})
        QTest::newRow(of->className()) << QString(of->className());
}

void TestTranslations::everyTextIsThere()
{
    QFETCH(QString, className);
    QTranslator translator;
    QVERIFY(translator.load(CATALOGUE_PATH));
    for (const char* const text :
         {INVALID_NODE, DEVICE_FRAME.emptyPath, DEVICE_FRAME.cannotOpen, DEVICE_FRAME.wrongRoot,
          DEVICE_FRAME.wrongVersion, "Parse error at line %1, column %2:\n%3", "Invalid hueColor [%1] node."}) {
        const QString translated = translator.translate(qPrintable(className), text);
        QVERIFY2(!translated.isEmpty() && translated != text, text);
        QCOMPARE(translated.count('%'), QString(text).count('%'));
    }
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "test_translations.moc"
