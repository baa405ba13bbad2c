// SPDX-License-Identifier: MIT
#include "fakeshortcut.h"
#include "pointer.h"
#include "testprogram.h"

#include <OlvIconButton>
#include <OlvLineEdit>
#include <OlvShortcutEdit>
#include <OlvSimpleIconButton>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

/**
 * What happens while a widget is being destroyed: QWidget deletes the children when all that
 * derives from it has gone already, and slots of their destroyed() may do anything.
 */
class TestDyingWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tileWhoseTimerFiresTellsNoClick();
    void passwordButtonLeavesADyingTextAlone();
    void dyingTextIsNoneAnyMore();
    void dyingFieldTakesNoShortcut();
};

void TestDyingWidgets::tileWhoseTimerFiresTellsNoClick()
{
    auto tile = std::make_unique<OlvIconButton>();
    QSignalSpy clicked(tile.get(), &OlvIconButton::clicked);
    auto *timer = tile->findChild<QTimer *>();
    auto *child = new QWidget(tile.get());
    child->lower(); // so that it goes before the timer
    bool fired = false;
    connect(child, &QObject::destroyed, this, [&] {
        connect(timer, &QTimer::timeout, this, [&] { fired = true; });
        QTRY_VERIFY(fired);
    });
    Pointer::click(*tile);
    QCoreApplication::sendPostedEvents(); // Qt does not stand these for a dying widget
    timer->start(1);
    tile.reset();
    QVERIFY(fired);
    QCOMPARE(clicked.count(), 0);
}

void TestDyingWidgets::passwordButtonLeavesADyingTextAlone()
{
    auto line = std::make_unique<OlvLineEdit>();
    line->setPassWord(true);
    auto *button = line->findChild<OlvSimpleIconButton *>();
    bool done = false;
    connect(new QObject(line->lineEdit()), &QObject::destroyed, this, [&] {
        button->click();
        done = true;
    });
    line.reset();
    QVERIFY(done);
}

void TestDyingWidgets::dyingTextIsNoneAnyMore()
{
    OlvLineEdit line;
    line.setText(QStringLiteral("text"));
    bool done = false;
    connect(new QObject(line.lineEdit()), &QObject::destroyed, this, [&] {
        QCOMPARE(line.lineEdit(), nullptr);
        QCOMPARE(line.getText(), QString());
        line.setText(QStringLiteral("other"));
        line.setPlaceholderText(QStringLiteral("other"));
        line.setPassWord(true);
        line.setIcon(QStringLiteral("a"));
        Pointer::click(line);
        done = true;
    });
    delete line.lineEdit();
    QVERIFY(done);
}

void TestDyingWidgets::dyingFieldTakesNoShortcut()
{
    takeRecord();
    auto field = std::make_unique<OlvShortcutEdit>();
    auto *held = new FakeShortcut(QStringLiteral("held"));
    QVERIFY(field->setShortcut(held));
    bool isTaken = true;
    connect(held, &QObject::destroyed, this, [&, raw = field.get()] {
        isTaken = raw->setShortcut(new FakeShortcut(QStringLiteral("next")));
    });
    field.reset();
    QVERIFY(!isTaken);
    QVERIFY(takeRecord().contains(QStringLiteral("next deleted")));
}

ADD_TEST(TestDyingWidgets, QApplication)
#include "tst_dyingwidgets.moc"
