// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <QGuiApplication>
#include <QLibrary>
#include <QTest>

class TestUnloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPluginOfWidgetsMayBeUnloaded();
};

void TestUnloading::aPluginOfWidgetsMayBeUnloaded()
{
    QLibrary plugin(QStringLiteral(OLV_BUTTON_PLUGIN));
    QVERIFY2(plugin.load(), qUtf8Printable(plugin.errorString()));
    const auto paint = reinterpret_cast<int (*)()>(plugin.resolve("paintButton"));
    QVERIFY(paint);
    QVERIFY(paint() > 2);
    QVERIFY(plugin.unload());
    // the listener is code of the library; what Qt keeps of the connection is read when the program
    // ends
    Q_EMIT qGuiApp->fontDatabaseChanged();
    QCoreApplication::processEvents();
    QVERIFY(plugin.load());
    const auto paintAgain = reinterpret_cast<int (*)()>(plugin.resolve("paintButton"));
    QVERIFY(paintAgain() > 2);
    QVERIFY(plugin.unload());
}

ADD_TEST(TestUnloading, QApplication)
#include "tst_unloading.moc"
