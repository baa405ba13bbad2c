// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "deferred.h"
#include "testprogram.h"

#include <OlvFlexWidget>

#include <QTest>

class TestAccessibleFlexWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void isAWindowOrAPane();
    void isCalledByItsTitle();
    void isCalledByItsTitleWithinAWindowToo();
    void tellsThatItIsModified();
    void canBeMovedAndResizedUnlessMaximised();
};

void TestAccessibleFlexWidget::cleanup()
{
    runDeferred();
}

void TestAccessibleFlexWidget::isAWindowOrAPane()
{
    QWidget desk;
    OlvFlexWidget panel(100, 100);
    QCOMPARE(accessible(&panel)->role(), QAccessible::Window);
    panel.setParent(&desk);
    QCOMPARE(accessible(&panel)->role(), QAccessible::Pane);
}

void TestAccessibleFlexWidget::isCalledByItsTitle()
{
    Assistant assistant;
    OlvFlexWidget panel(100, 100);
    panel.show();
    panel.setWindowTitle(QStringLiteral("Note"));
    QCOMPARE(nameOf(&panel), QStringLiteral("Note"));
    QCOMPARE(assistant.heardOf(&panel), QStringList{ QStringLiteral("name Note") });
    panel.setAccessibleName(QStringLiteral("Sticky note"));
    QCOMPARE(nameOf(&panel), QStringLiteral("Sticky note"));
}

void TestAccessibleFlexWidget::isCalledByItsTitleWithinAWindowToo()
{
    QWidget desk;
    OlvFlexWidget panel(100, 100);
    panel.setWindowTitle(QStringLiteral("Note"));
    panel.setParent(&desk);
    QCOMPARE(nameOf(&panel), QStringLiteral("Note"));
}

void TestAccessibleFlexWidget::tellsThatItIsModified()
{
    Assistant assistant;
    OlvFlexWidget panel(100, 100);
    panel.setWindowTitle(QStringLiteral("Note[*]"));
    panel.show();
    assistant.heardOf(&panel);
    panel.setWindowModified(true);
    QCOMPARE(assistant.heardOf(&panel), QStringList{ QStringLiteral("name Note*") });
}

void TestAccessibleFlexWidget::canBeMovedAndResizedUnlessMaximised()
{
    OlvFlexWidget panel(100, 100);
    QVERIFY(accessible(&panel)->state().movable);
    QVERIFY(accessible(&panel)->state().sizeable);
    panel.showMaximized();
    QVERIFY(!accessible(&panel)->state().movable);
    QVERIFY(!accessible(&panel)->state().sizeable);
}

ADD_TEST(TestAccessibleFlexWidget, QApplication)
#include "tst_accessibleflexwidget.moc"
