// SPDX-License-Identifier: MIT
#include "shortcutkeys.h"
#include "testprogram.h"

#include <QLibrary>

class TestShortcutUnloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPluginOfShortcutsMayBeUnloaded();
};

void TestShortcutUnloading::aPluginOfShortcutsMayBeUnloaded()
{
    QLibrary plugin(QStringLiteral(OLV_SHORTCUT_PLUGIN));
    for (const char *layout : { "de", "us" }) {
        QVERIFY2(plugin.load(), qUtf8Printable(plugin.errorString()));
        const auto registerShortcut =
            reinterpret_cast<bool (*)()>(plugin.resolve("registerShortcut"));
        QVERIFY(registerShortcut);
        QVERIFY(registerShortcut());
        QVERIFY(plugin.unload());
        // the library's connection goes on to hear of the server's events, such as a new layout
        setLayout(layout);
        QTest::qWait(100);
    }
    // the library's objects go with the application, when the program ends
}

ADD_TEST(TestShortcutUnloading, QApplication)
#include "tst_shortcutunloading.moc"
