// SPDX-License-Identifier: MIT
#include "paintwatch.h"
#include "pixels.h"
#include "sizedlineedit.h"
#include "testprogram.h"

#include <QPainter>
#include <QTest>

class TestLineEditPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void repaintsOnlyWhereItSaysSo();
    void draws_data();
    void draws();
    void survivesHostileProperties();
};

void TestLineEditPainting::repaintsOnlyWhereItSaysSo()
{
    SizedLineEdit edit;
    PaintWatch watch(edit);
    QVERIFY(watch.showWindow());
    // without an icon of its own size nothing else than the call would repaint
    edit.setIcon(QString());
    QCOMPARE(watch.takeWhole(), 1);
    edit.setPassWord(false);
    QCOMPARE(watch.takeWhole(), 1);
    sendFocus(editorOf(edit), QEvent::FocusIn);
    QCOMPARE(watch.takeWhole(), 1);
    sendFocus(editorOf(edit), QEvent::FocusOut);
    QCOMPARE(watch.takeWhole(), 1);
    edit.setPwdIcon(QStringLiteral("a"), QStringLiteral("b"));
    QCOMPARE(watch.takeWhole(), 0);
}

void TestLineEditPainting::draws_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("state");
    for (const QSize size : { QSize(240, 32), QSize(121, 41), QSize(8, 9) }) {
        for (const QString &icon : { QString(), QStringLiteral("@"), QString(QChar(0xf007)) }) {
            for (const char *state : { "normal", "edit", "other" }) {
                QTest::addRow("%d x %d, icon %d, %s", size.width(), size.height(),
                              icon.isEmpty() ? 0 : icon.at(0).unicode(), state)
                    << size << icon << QString::fromLatin1(state);
            }
        }
    }
}

void TestLineEditPainting::draws()
{
    QFETCH(QSize, size);
    QFETCH(QString, icon);
    QFETCH(QString, state);
    SizedLineEdit edit(size);
    edit.setIcon(icon);
    edit.setProperty("state", state);
    const QFont font = edit.font();
    const int column = edit.property("IconWidth").toInt();
    DrawnWidget expected(size, [=](QPainter &painter) {
        painter.setPen(QColor(220, 223, 230));
        painter.setBrush(QColor(255, 255, 255));
        painter.drawRoundedRect(QRectF(0, 0, size.width(), size.height()), 3.0, 3.0);
        painter.setPen(state == QLatin1String("normal") ? QColor(184, 186, 188)
                                                        : QColor(18, 183, 245));
        painter.setFont(font);
        painter.drawText(QRect(0, 0, column, size.height()), Qt::AlignCenter, icon);
    });
    for (const qreal ratio : { 1.0, 2.0 }) {
        COMPARE_PICTURES(pictureOf(edit, ratio), pictureOf(expected, ratio));
    }
}

void TestLineEditPainting::survivesHostileProperties()
{
    for (const char *name : { "Icon", "IconWidth", "Pwd", "Visible", "Invisible", "state" }) {
        for (const QVariant &value : { QVariant(), QVariant(1e300), QVariant(-5),
                                       QVariant(QString(5000, QLatin1Char('x'))) }) {
            SizedLineEdit edit;
            edit.setProperty(name, value);
            QVERIFY(!edit.grab().isNull());
            edit.setSize({ 100, 30 });
            edit.setPassWord(true);
            QVERIFY(!edit.grab().isNull());
        }
    }
}

ADD_TEST(TestLineEditPainting, QApplication)
#include "tst_lineeditpainting.moc"
