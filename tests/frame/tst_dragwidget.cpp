// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvDragWidget>

#include <QTest>

class TestDragWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainWidgetWhateverItIsTold();
};

void TestDragWidget::isAPlainWidgetWhateverItIsTold()
{
    QWidget parent;
    const QWidget plain(&parent);
    const OlvDragWidget bare(&parent, nullptr, nullptr, QPoint(-5, 99999));
    const OlvDragWidget told(&parent, &parent, &parent, QPoint(3, 4));
    for (const OlvDragWidget *widget : { &bare, &told }) {
        QCOMPARE(widget->parentWidget(), &parent);
        QCOMPARE(widget->windowFlags(), plain.windowFlags());
        QCOMPARE(widget->geometry(), plain.geometry());
        QVERIFY(widget->children().isEmpty());
        QVERIFY(widget->dynamicPropertyNames().isEmpty());
    }
}

ADD_TEST(TestDragWidget, QApplication)
#include "tst_dragwidget.moc"
