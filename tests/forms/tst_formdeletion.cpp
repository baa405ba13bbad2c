// SPDX-License-Identifier: MIT
// Supports, forms and widgets that are deleted while a support is at work.
#include "ringaround.h"
#include "servedbutton.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QApplication>
#include <QPointer>
#include <QTest>

#include <functional>
#include <utility>

namespace {

/** A button that does something when the pointer leaves it. */
class ActingButton : public OlvButton
{
public:
    using OlvButton::OlvButton;
    std::function<void()> whenLeft;

protected:
    void leaveEvent(QEvent *event) override
    {
        OlvButton::leaveEvent(event);
        if (whenLeft) {
            std::exchange(whenLeft, nullptr)();
        }
    }
};

/** Keeps from those that watch a widget that it dies. */
class SilentDeath : public QObject
{
public:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        return event->type() == QEvent::Destroy;
    }
};

} // namespace

class TestFormDeletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isStoodInEitherOrder();
    void isStoodWhileWidgetsAreServed_data();
    void isStoodWhileWidgetsAreServed();
    void isStoodWhileTheSupportLeaves_data();
    void isStoodWhileTheSupportLeaves();
    void isStoodWhereTheSupportDoesNotHearOfIt();
};

void TestFormDeletion::isStoodInEitherOrder()
{
    auto *window = new QWidget;
    auto *support = new OlvFormSupport(window);
    const QPointer<OlvButton> button(addButton(window));
    window->show();
    QVERIFY(isServed(*button));
    delete support;
    QVERIFY(!isServed(*button));

    const QPointer<OlvFormSupport> second(new OlvFormSupport(window));
    delete button;
    window->hide();
    window->show();
    delete window;
    QVERIFY(!second);
}

void TestFormDeletion::isStoodWhileWidgetsAreServed_data()
{
    QTest::addColumn<QString>("victim");
    // neither the widget that is to get the focus nor its window, which Qt does not stand
    for (const char *victim : { "next", "support" }) {
        QTest::newRow(victim) << QString::fromLatin1(victim);
    }
}

/** The line edit that has the focus loses it to its text. */
void TestFormDeletion::isStoodWhileWidgetsAreServed()
{
    QFETCH(QString, victim);
    const QPointer<QWidget> window(new QWidget);
    const QPointer<OlvLineEdit> edit(new OlvLineEdit(window));
    const QPointer<OlvButton> next(addButton(window));
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window));
    edit->setFocus();
    const QPointer<OlvFormSupport> support(new OlvFormSupport(window, OlvFormSupport::Features()));
    bool hasLeft = false;
    connect(qApp, &QApplication::focusChanged, window, [&] {
        if (std::exchange(hasLeft, true)) {
            return;
        }
        if (victim == QLatin1String("next")) {
            delete next;
        } else {
            delete support;
        }
    });
    support->setFeatures(OlvFormSupport::AllFeatures);
    QVERIFY(hasLeft);
    QVERIFY(!window->grab().isNull());
    QVERIFY(!next || !isServed(*next));
    delete window;
}

void TestFormDeletion::isStoodWhileTheSupportLeaves_data()
{
    QTest::addColumn<QString>("victim");
    for (const char *victim : { "widget", "next", "window" }) {
        QTest::newRow(victim) << QString::fromLatin1(victim);
    }
}

void TestFormDeletion::isStoodWhileTheSupportLeaves()
{
    QFETCH(QString, victim);
    const QPointer<QWidget> window(new QWidget);
    const QPointer<ActingButton> button(new ActingButton(window));
    const QPointer<OlvButton> next(addButton(window));
    window->show();
    auto *support = new OlvFormSupport(window);
    button->setFocus();
    QTest::keyPress(button, Qt::Key_Space);
    QCOMPARE(button->property("state").toString(), QStringLiteral("click"));
    bool hasLeft = false;
    button->whenLeft = [&] {
        hasLeft = true;
        if (victim == QLatin1String("widget")) {
            delete button;
        } else if (victim == QLatin1String("next")) {
            delete next;
        } else {
            delete window;
        }
    };
    delete support;
    QVERIFY(hasLeft);
    if (next) {
        QVERIFY(!isServed(*next));
    }
    delete window;
}

/** The ring is around the widget that dies. */
void TestFormDeletion::isStoodWhereTheSupportDoesNotHearOfIt()
{
    QWidget window;
    auto *page = new QWidget(&window);
    OlvButton *button = addButton(page);
    new OlvFormSupport(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    tabTo(button);
    QVERIFY(hasRing(window));
    SilentDeath silence;
    button->installEventFilter(&silence);
    delete button;
    page->move(20, 20);
    QVERIFY(!hasRing(window));
    OlvButton *next = addButton(page);
    next->show();
    QApplication::processEvents();
    tabTo(next);
    QVERIFY(hasRing(window));
}

ADD_TEST(TestFormDeletion, QApplication)
#include "tst_formdeletion.moc"
