// SPDX-License-Identifier: MIT
#include "ringaround.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTest>

namespace {

constexpr int margin = 3;

/** What lies around @p widget in its window: the ring, and a pixel that rounding may take. */
QRect placeAround(const QWidget &widget)
{
    return QRect(widget.mapTo(widget.window(), QPoint()), widget.size())
        .adjusted(-margin - 1, -margin - 1, margin + 1, margin + 1);
}

QRect placeOf(const QFocusFrame &ring)
{
    return QRect(ring.mapTo(ring.window(), QPoint()), ring.size());
}

} // namespace

class TestFocusRing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesWithTheKeyboard_data();
    void comesWithTheKeyboard();
    void comesOnceTheKeyboardIsUsed();
    void comesWithCodeOnceTheKeyboardIsUsed();
    void liesAroundTheFrameOfALineEdit();
    void isNoPartOfTheForm();
    void followsItsWidget();
    void isCutOffInAScrollArea();
    void leavesASplitterAlone();
    void liesInsideAWindow();
    void waitsForItsWindow();
    void comesBackWithTheFocus_data();
    void comesBackWithTheFocus();
    void goesWithItsSupport_data();
    void goesWithItsSupport();
    void outlivesTheWindowThatItWasIn();
    void movesToAnotherWindowWithItsWidget();
};

void TestFocusRing::comesWithTheKeyboard_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<bool>("comes");
    QTest::newRow("Tab") << Qt::TabFocusReason << true;
    QTest::newRow("Backtab") << Qt::BacktabFocusReason << true;
    QTest::newRow("mnemonic") << Qt::ShortcutFocusReason << true;
    QTest::newRow("mouse") << Qt::MouseFocusReason << false;
    QTest::newRow("code") << Qt::OtherFocusReason << false;
    QTest::newRow("window") << Qt::ActiveWindowFocusReason << false;
    QTest::newRow("popup") << Qt::PopupFocusReason << false;
}

void TestFocusRing::comesWithTheKeyboard()
{
    QFETCH(Qt::FocusReason, reason);
    QFETCH(bool, comes);
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    // no other test has used the keyboard in this window
    form.setAttribute(Qt::WA_KeyboardFocusChange, false);
    form.star->setFocus(Qt::MouseFocusReason);
    QVERIFY(!hasRing(form));
    form.save->setFocus(reason);
    QCOMPARE(hasRing(form), comes);
    form.wifi->setFocus(Qt::MouseFocusReason);
    QVERIFY(!hasRing(form));
}

void TestFocusRing::comesOnceTheKeyboardIsUsed()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QTest::mouseClick(form.wifi, Qt::LeftButton);
    QVERIFY(form.wifi->hasFocus());
    QVERIFY(!hasRing(form));
    QTest::keyClick(form.wifi, Qt::Key_A);
    QVERIFY(!hasRing(form));
    QTest::keyClick(form.wifi, Qt::Key_Space);
    QVERIFY(hasRing(form));
    QTest::mouseClick(form.save, Qt::LeftButton);
    QTest::mouseClick(form.wifi, Qt::LeftButton);
    QVERIFY(form.wifi->hasFocus());
    QVERIFY(!hasRing(form));
    QTest::keyClick(form.wifi, Qt::Key_Space);
    QVERIFY(hasRing(form));
}

void TestFocusRing::comesWithCodeOnceTheKeyboardIsUsed()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QTest::keyClick(&form, Qt::Key_Tab);
    form.save->setFocus();
    QVERIFY(hasRing(form));
    QCOMPARE(placeOf(*ringIn(form)), placeAround(*form.save));
}

void TestFocusRing::liesAroundTheFrameOfALineEdit()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.save->setFocus();
    QTest::keyClick(&form, Qt::Key_Tab); // round to the first
    QCOMPARE(QApplication::focusWidget(), form.name->lineEdit());
    QVERIFY(hasRing(form));
    QCOMPARE(placeOf(*ringIn(form)), placeAround(*form.name));
}

void TestFocusRing::isNoPartOfTheForm()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    const QSize hint = form.sizeHint();
    const QSize size = form.size();
    tabTo(form.save);
    QVERIFY(hasRing(form));
    const QFocusFrame *ring = ringIn(form);
    QCOMPARE(form.sizeHint(), hint);
    QCOMPARE(form.size(), size);
    QCOMPARE(form.layout()->indexOf(const_cast<QFocusFrame *>(ring)), -1);
    QCOMPARE(ring->focusPolicy(), Qt::NoFocus);
    QCOMPARE(form.childAt(form.save->geometry().center()), form.save);
    QCOMPARE(form.childAt(form.save->geometry().topLeft() - QPoint(2, 0)), nullptr);
    QCOMPARE(form.save->children().size(), OlvButton(nullptr).children().size());
}

void TestFocusRing::followsItsWidget()
{
    QWidget window;
    window.resize(400, 300);
    auto *page = new QWidget(&window);
    page->setGeometry(20, 20, 300, 200);
    auto *other = new QWidget(&window);
    other->setGeometry(0, 0, 400, 300);
    other->lower();
    auto *button = new OlvButton(QStringLiteral("Save"), page);
    button->setGeometry(10, 10, 90, 32);
    new OlvFormSupport(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    tabTo(button);
    const auto isAround = [&] {
        return hasRing(window) && placeOf(*ringIn(window)) == placeAround(*button);
    };
    QVERIFY(isAround());
    button->move(50, 60);
    QVERIFY(isAround());
    button->resize(120, 40);
    QVERIFY(isAround());
    page->move(40, 50);
    QVERIFY(isAround());
    button->setParent(other);
    button->show();
    tabTo(button);
    QVERIFY(isAround());
    other->move(5, 5);
    QVERIFY(isAround());
    button->hide();
    QVERIFY(!hasRing(window));
    button->show();
    tabTo(button);
    QVERIFY(isAround());
    delete button;
    QVERIFY(!hasRing(window));
}

void TestFocusRing::isCutOffInAScrollArea()
{
    QScrollArea area;
    area.resize(200, 120);
    auto *content = new QWidget;
    content->resize(150, 600);
    auto *button = new OlvButton(QStringLiteral("Save"), content);
    button->setGeometry(10, 20, 90, 32);
    area.setWidget(content);
    new OlvFormSupport(&area);
    area.show();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    tabTo(button);
    const QFocusFrame *ring = ringIn(area);
    QVERIFY(ring && ring->isVisible());
    QCOMPARE(ring->parentWidget(), area.viewport());
    QCOMPARE(placeOf(*ring), placeAround(*button));
    area.verticalScrollBar()->setValue(40);
    QVERIFY(ring->isVisible());
    QVERIFY(area.viewport()->rect().contains(ring->geometry()));
    QCOMPARE(ring->geometry().bottom(),
             button->mapTo(area.viewport(), QPoint(0, button->height())).y() + margin);
    area.verticalScrollBar()->setValue(300);
    QVERIFY(!ring->isVisible());
    area.verticalScrollBar()->setValue(0);
    QCOMPARE(placeOf(*ring), placeAround(*button));
}

void TestFocusRing::leavesASplitterAlone()
{
    QWidget window; // the offscreen platform complains about windows with a minimum size
    window.resize(400, 200);
    QSplitter splitter(&window);
    auto *slider = new OlvSlider(&splitter);
    auto *button = new OlvButton(QStringLiteral("Save"), &splitter);
    new OlvFormSupport(&splitter, OlvFormSupport::FocusRing | OlvFormSupport::Keyboard);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    tabTo(slider);
    QVERIFY(hasRing(window));
    tabTo(button);
    QVERIFY(hasRing(window));
    QCOMPARE(splitter.count(), 2);
}

void TestFocusRing::liesInsideAWindow()
{
    OlvButton button(QStringLiteral("Save"), nullptr);
    button.resize(200, 60);
    new OlvFormSupport(&button);
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    tabTo(&button);
    QVERIFY(hasRing(button));
    QCOMPARE(ringIn(button)->geometry(), button.rect());
}

void TestFocusRing::waitsForItsWindow()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    tabTo(form.save);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!hasRing(form));
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QTRY_VERIFY(form.save->hasFocus());
    QVERIFY(hasRing(form));
}

void TestFocusRing::comesBackWithTheFocus_data()
{
    QTest::addColumn<bool>("wasThere");
    QTest::addColumn<Qt::FocusReason>("out");
    QTest::addColumn<Qt::FocusReason>("in");
    QTest::addColumn<bool>("comes");
    QTest::newRow("window") << true << Qt::ActiveWindowFocusReason << Qt::ActiveWindowFocusReason
                            << true;
    QTest::newRow("popup") << true << Qt::PopupFocusReason << Qt::PopupFocusReason << true;
    QTest::newRow("menu bar") << true << Qt::MenuBarFocusReason << Qt::MenuBarFocusReason << true;
    QTest::newRow("menu bar, to another window")
        << true << Qt::MenuBarFocusReason << Qt::ActiveWindowFocusReason << true;
    QTest::newRow("window, by a click")
        << true << Qt::ActiveWindowFocusReason << Qt::MouseFocusReason << false;
    QTest::newRow("Tab, then window")
        << true << Qt::TabFocusReason << Qt::ActiveWindowFocusReason << false;
    QTest::newRow("mouse, then popup")
        << true << Qt::MouseFocusReason << Qt::PopupFocusReason << false;
    QTest::newRow("window without a ring")
        << false << Qt::ActiveWindowFocusReason << Qt::ActiveWindowFocusReason << false;
}

void TestFocusRing::comesBackWithTheFocus()
{
    QFETCH(bool, wasThere);
    QFETCH(Qt::FocusReason, out);
    QFETCH(Qt::FocusReason, in);
    QFETCH(bool, comes);
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.save->clearFocus();
    form.save->setFocus(wasThere ? Qt::TabFocusReason : Qt::MouseFocusReason);
    QCOMPARE(hasRing(form), wasThere);
    QFocusEvent leaving(QEvent::FocusOut, out);
    QApplication::sendEvent(form.save, &leaving);
    QVERIFY(!hasRing(form));
    for (const bool isFirst : { true, false }) { // what comes back does so once
        QFocusEvent coming(QEvent::FocusIn, in);
        QApplication::sendEvent(form.save, &coming);
        QCOMPARE(hasRing(form), comes && isFirst);
    }
}

void TestFocusRing::goesWithItsSupport_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : { "support", "feature", "widget" }) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void TestFocusRing::goesWithItsSupport()
{
    QFETCH(QString, way);
    QWidget window;
    auto *button = new OlvButton(QStringLiteral("Save"), &window);
    auto *support = new OlvFormSupport(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    tabTo(button);
    support->setFeatures(OlvFormSupport::Keyboard | OlvFormSupport::FocusRing); // others may go
    QVERIFY(hasRing(window));
    if (way == QLatin1String("support")) {
        delete support;
        QVERIFY(!ringIn(window));
    } else if (way == QLatin1String("feature")) {
        support->setFeatures(OlvFormSupport::Keyboard);
    } else {
        button->setParent(nullptr);
        delete button;
    }
    QVERIFY(!hasRing(window));
}

void TestFocusRing::outlivesTheWindowThatItWasIn()
{
    auto *window = new QWidget;
    auto *page = new QWidget(window);
    auto *button = new OlvButton(QStringLiteral("Save"), page);
    new OlvFormSupport(page);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window));
    tabTo(button);
    QVERIFY(hasRing(*window));
    QWidget other;
    page->setParent(&other);
    delete window;
    page->show();
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    button->setFocus(Qt::MouseFocusReason);
    page->setFocusPolicy(Qt::StrongFocus);
    page->setFocus();
    tabTo(button);
    QVERIFY(hasRing(other));
}

/** Also where the application keeps from the support that the focus has gone. */
void TestFocusRing::movesToAnotherWindowWithItsWidget()
{
    class Filter : public QObject
    {
    public:
        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            return event->type() == QEvent::FocusOut;
        }
    } filter;
    QWidget window;
    QWidget other;
    auto *page = new QWidget(&window);
    page->setGeometry(10, 10, 200, 100);
    auto *button = new OlvButton(QStringLiteral("Save"), page);
    button->setGeometry(20, 20, 90, 30);
    new OlvFormSupport(page);
    window.show();
    other.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    tabTo(button);
    QVERIFY(hasRing(window));
    button->installEventFilter(&filter);
    page->setParent(&other);
    page->show();
    QVERIFY(!ringIn(window));
    QVERIFY(hasRing(other));
    QCOMPARE(placeOf(*ringIn(other)), placeAround(*button));
}

ADD_TEST(TestFocusRing, QApplication)
#include "tst_focusring.moc"
