// SPDX-License-Identifier: MIT
#include "exampleprogram.h"
#include "pixels.h"
#include "testprogram.h"

#include <QTest>

namespace {

constexpr int listPatience = 90000; // milliseconds; longer than the program itself waits

/** What another program finds on the accessibility bus. */
QStringList listOfWidgets(qint64 processId)
{
    QProcess list;
    list.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    list.start(QStringLiteral("/usr/bin/python3"),
               { QStringLiteral("-Wignore::DeprecationWarning"), QStringLiteral(OLV_LIST_WIDGETS),
                 QStringLiteral(OLV_ASSISTANT_FOLDER), QString::number(processId) });
    if (!list.waitForFinished(listPatience)) {
        list.kill();
        list.waitForFinished();
    }
    return QString::fromUtf8(list.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

/** The examples, as the user of a screen reader finds them. */
class TestExamplesOnBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWidgetToUseHasAName_data();
    void everyWidgetToUseHasAName();
};

void TestExamplesOnBus::everyWidgetToUseHasAName_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("widgets");
    QTest::newRow("settingsdialog")
        << QStringLiteral(OLV_SETTINGSDIALOG) << QStringLiteral("Settings")
        << QStringList{ QStringLiteral("panel|Display name"),
                        QStringLiteral("text|Display name"),
                        QStringLiteral("check box|Notifications"),
                        QStringLiteral("check box|Start with the desktop"),
                        QStringLiteral("slider|Volume"),
                        QStringLiteral("push button|Save") };
    QTest::newRow("framelesseditor")
        << QStringLiteral(OLV_FRAMELESSEDITOR) << QStringLiteral("Editor")
        << QStringList{ QStringLiteral("push button|Open"), QStringLiteral("push button|Save"),
                        QStringLiteral("check box|悬浮"),   QStringLiteral("check box|置底"),
                        QStringLiteral("check box|置顶"),   QStringLiteral("push button|最小化"),
                        QStringLiteral("check box|最大化"), QStringLiteral("push button|关闭"),
                        QStringLiteral("text|Text") };
    QTest::newRow("launcher")
        << QStringLiteral(OLV_LAUNCHER) << QStringLiteral("Launcher")
        << QStringList{
               QStringLiteral("panel|Search"),         QStringLiteral("text|Search"),
               QStringLiteral("push button|Browser"),  QStringLiteral("push button|Mail"),
               QStringLiteral("push button|Terminal"), QStringLiteral("push button|Files"),
               QStringLiteral("push button|Editor"),   QStringLiteral("push button|Calculator"),
               QStringLiteral("push button|Music"),    QStringLiteral("push button|Videos"),
               QStringLiteral("push button|Pictures"), QStringLiteral("push button|Calendar"),
               QStringLiteral("push button|Settings"), QStringLiteral("push button|Lock")
           };
    QTest::newRow("stickynote") << QStringLiteral(OLV_STICKYNOTE) << QStringLiteral("Note")
                                << QStringList{ QStringLiteral("check box|Keep on top"),
                                                QStringLiteral("push button|Another note"),
                                                QStringLiteral("push button|Throw away"),
                                                QStringLiteral("text|Text") };
}

void TestExamplesOnBus::everyWidgetToUseHasAName()
{
    QFETCH(QString, program);
    QFETCH(QString, title);
    QFETCH(QStringList, widgets);
    ExampleProgram example(program);
    QVERIFY(example.start());
    QTRY_VERIFY_WITH_TIMEOUT(example.findWindow(title), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(example.picture()) > 20, patience);
    QTRY_COMPARE_WITH_TIMEOUT(listOfWidgets(example.processId()), widgets, patience);
}

ADD_TEST(TestExamplesOnBus, QApplication)
#include "tst_examplesonbus.moc"
