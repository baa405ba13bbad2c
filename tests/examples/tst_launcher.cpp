// SPDX-License-Identifier: MIT
#include "exampleprogram.h"
#include "pixels.h"

#include <QDir>
#include <QTest>

/** Each example as its user runs it: started, and closed. */
class TestExamplesOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensItsWindowAndClosesWithoutAWord_data();
    void opensItsWindowAndClosesWithoutAWord();
    void launcherNamesTheTileThatIsClicked();
    void launcherStartsTheProgramThatIsDoubleClicked();
};

void TestExamplesOnServer::opensItsWindowAndClosesWithoutAWord_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("title");
    QTest::newRow("settingsdialog")
        << QStringLiteral(OLV_SETTINGSDIALOG) << QStringLiteral("Settings");
    QTest::newRow("framelesseditor")
        << QStringLiteral(OLV_FRAMELESSEDITOR) << QStringLiteral("Editor");
    QTest::newRow("launcher") << QStringLiteral(OLV_LAUNCHER) << QStringLiteral("Launcher");
    QTest::newRow("stickynote") << QStringLiteral(OLV_STICKYNOTE) << QStringLiteral("Note");
}

void TestExamplesOnServer::opensItsWindowAndClosesWithoutAWord()
{
    QFETCH(QString, program);
    QFETCH(QString, title);
    ExampleProgram example(program);
    QVERIFY(example.start());
    QTRY_VERIFY_WITH_TIMEOUT(example.findWindow(title), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(example.picture()) > 20, patience);
    example.close();
    QVERIFY(example.ends());
}

void TestExamplesOnServer::launcherNamesTheTileThatIsClicked()
{
    ExampleProgram launcher(QStringLiteral(OLV_LAUNCHER));
    QVERIFY(launcher.start());
    QTRY_VERIFY_WITH_TIMEOUT(launcher.findWindow(QStringLiteral("Launcher")), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(launcher.picture()) > 20, patience);
    const auto status = [&] {
        const QImage image = launcher.picture();
        return image.copy(0, image.height() - 30, image.width(), 30);
    };
    const QImage before = status();
    launcher.click({ 60, 60 });
    launcher.input().moveTo({ 1279, 799 });
    QTRY_VERIFY_WITH_TIMEOUT(status() != before, patience);
    launcher.close();
    QVERIFY(launcher.ends());
}

void TestExamplesOnServer::launcherStartsTheProgramThatIsDoubleClicked()
{
    ExampleProgram launcher(QStringLiteral(OLV_LAUNCHER));
    // stands for the browser, whatever is installed
    const QString browser = QStringLiteral("bin/x-www-browser");
    launcher.write(browser, "#!/bin/sh\necho started >>\"$XDG_CONFIG_HOME/browser\"\n");
    QVERIFY(QFile::setPermissions(launcher.path(browser), QFile::ReadUser | QFile::ExeUser));
    QVERIFY(launcher.start({}, launcher.path(QStringLiteral("bin"))));
    QTRY_VERIFY_WITH_TIMEOUT(launcher.findWindow(QStringLiteral("Launcher")), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(launcher.picture()) > 20, patience);
    // on a busy machine two clicks may come too late after each other
    const auto hasStarted = [&] {
        return launcher.read(QStringLiteral("browser")).startsWith("started\n");
    };
    bool isStarted = false;
    for (int tries = 5; tries > 0 && !isStarted; --tries) {
        launcher.click({ 60, 60 });
        launcher.input().click();
        isStarted = QTest::qWaitFor(hasStarted, 3000);
    }
    QVERIFY(isStarted);
    launcher.close();
    QVERIFY(launcher.ends());
}

QTEST_MAIN(TestExamplesOnServer)
#include "tst_examplesonserver.moc"
