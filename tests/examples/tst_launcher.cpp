// SPDX-License-Identifier: MIT
#include "exampleprogram.h"
#include "pixels.h"
#include "testprogram.h"

#include <QFile>
#include <QTest>

/** The launcher, as its user runs it. */
class TestLauncher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheTileThatIsClicked();
    void startsTheProgramThatIsDoubleClicked_data();
    void startsTheProgramThatIsDoubleClicked();
};

void TestLauncher::namesTheTileThatIsClicked()
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

void TestLauncher::startsTheProgramThatIsDoubleClicked_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("program");
    QTest::newRow("the first of all") << QString() << QStringLiteral("bin/x-www-browser");
    QTest::newRow("the first that a search leaves")
        << QStringLiteral("mus") << QStringLiteral("bin/audacious");
}

void TestLauncher::startsTheProgramThatIsDoubleClicked()
{
    QFETCH(QString, search);
    QFETCH(QString, program);
    ExampleProgram launcher(QStringLiteral(OLV_LAUNCHER));
    // in place of the installed program, if any
    launcher.write(program, "#!/bin/sh\necho started >>\"$XDG_CONFIG_HOME/program\"\n");
    QVERIFY(QFile::setPermissions(launcher.path(program), QFile::ReadUser | QFile::ExeUser));
    QVERIFY(launcher.start({}, launcher.path(QStringLiteral("bin"))));
    QTRY_VERIFY_WITH_TIMEOUT(launcher.findWindow(QStringLiteral("Launcher")), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(launcher.picture()) > 20, patience);
    if (!search.isEmpty()) {
        const QImage all = launcher.picture();
        launcher.click({ 100, 16 });
        launcher.type(search);
        QTRY_VERIFY_WITH_TIMEOUT(launcher.picture() != all, patience);
    }
    // on a busy machine two clicks may come too late after each other
    const auto hasStarted = [&] {
        return launcher.read(QStringLiteral("program")).startsWith("started\n");
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

ADD_TEST(TestLauncher, QApplication)
#include "tst_launcher.moc"
