// SPDX-License-Identifier: MIT
#include "fakeshortcut.h"
#include "keyplay.h"
#include "paintwatch.h"
#include "pixels.h"
#include "testprogram.h"

#include <OlvShortcutEdit>

#include <QPainter>
#include <QTest>

class TestShortcutEditPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheOldTextUntilARepaint();
    void draws_data();
    void draws();
    void drawsItsFocus();
};

void TestShortcutEditPainting::showsTheOldTextUntilARepaint()
{
    OlvShortcutEdit edit;
    PaintWatch watch(edit);
    QVERIFY(watch.showWindow());
    edit.setShortcut(new FakeShortcut(QStringLiteral("one")));
    edit.clear();
    QCOMPARE(watch.take(), {});
    // the keyboard's way repaints, whether the combination is free or not
    play(edit, QStringLiteral("+a -a"));
    QCOMPARE(watch.takeWhole(), 1);
}

void TestShortcutEditPainting::draws_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("text");
    for (const QSize size : { QSize(200, 30), QSize(121, 41), QSize(20, 1) }) {
        for (const char *text : { "", "Ctrl+Shift+A" }) {
            QTest::addRow("%d x %d %s", size.width(), size.height(), text)
                << size << QString::fromLatin1(text);
        }
    }
}

void TestShortcutEditPainting::draws()
{
    QFETCH(QSize, size);
    QFETCH(QString, text);
    OlvShortcutEdit edit;
    edit.resize(size);
    if (!text.isEmpty()) {
        edit.setShortcut(new FakeShortcut(text));
    }
    DrawnWidget expected(size, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(QFont(QStringLiteral("新宋体"), size.height() / 2));
        painter.setPen(Qt::gray);
        painter.setBrush(QColor(255, 255, 255));
        painter.drawRoundedRect(QRectF(0, 0, size.width() - 2, size.height() - 2), 3.0, 3.0);
        painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, text);
    });
    for (const qreal ratio : { 1.0, 2.0 }) {
        COMPARE_PICTURES(pictureOf(edit, ratio), pictureOf(expected, ratio));
    }
}

void TestShortcutEditPainting::drawsItsFocus()
{
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("F5")));
    edit.resize(100, 30);
    edit.show();
    edit.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QTRY_VERIFY(edit.hasFocus());
    DrawnWidget expected({ 100, 30 }, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(QFont(QStringLiteral("新宋体"), 15));
        painter.setPen(QColor(32, 32, 32));
        painter.setBrush(QColor(255, 255, 255));
        painter.drawRoundedRect(QRectF(0, 0, 98, 28), 3.0, 3.0);
        painter.drawText(QRect(0, 0, 100, 30), Qt::AlignCenter, QStringLiteral("F5"));
    });
    COMPARE_PICTURES(pictureOf(edit), pictureOf(expected));
}

ADD_TEST(TestShortcutEditPainting, QApplication)
#include "tst_shortcuteditpainting.moc"
