// SPDX-License-Identifier: MIT
// Where the focus is in a form, and where it goes.
#include "notingform.h"
#include "testprogram.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QTest>

namespace {

/** Where the focus goes with as many presses of Tab, from the first widget on. */
QWidgetList tabStops(QWidget &window, int count, Qt::Key key = Qt::Key_Tab)
{
    QWidgetList stops;
    for (int i = 0; i < count; ++i) {
        stops.append(QApplication::focusWidget());
        QTest::keyClick(&window, key);
    }
    return stops;
}

/** Notes the releases of keys that come to a widget. */
class ReleaseWatch : public QObject
{
public:
    QVector<int> keys;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyRelease) {
            keys.append(static_cast<QKeyEvent *>(event)->key());
        }
        return QObject::eventFilter(watched, event);
    }
};

/** The widgets of a window in the order of the tabs, those that take no focus as well. */
QWidgetList focusChain(const QWidget &window)
{
    QWidgetList chain;
    for (QWidget *one = window.nextInFocusChain(); one != &window; one = one->nextInFocusChain()) {
        chain.append(one);
    }
    return chain;
}

} // namespace

class TestFormFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneStopAWidget();
    void goesBackwards();
    void followsAnOrderSetBefore();
    void followsAnOrderSetAfterwards();
    void restoresTheOrder_data();
    void restoresTheOrder();
    void leavesAnOrderSetAfterwards();
    void leavesAnOrderSetOnceItIsRestored();
    void isInTheTextOfALineEdit();
    void goesOnToTheTextOfTheLineEditThatHasIt();
    void leavesAPolicyOfTheApplication();
    void leavesAProxyOfTheApplication();
    void leavesAShortcutEdit();
    void bringsNoKeyToAShortcutEdit();
    void followsMnemonics();
    void followsTheMouse();
};

void TestFormFocus::isOneStopAWidget()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.name->setFocus();
    const QWidgetList expected{ form.name->lineEdit(),
                                form.password->lineEdit(),
                                form.shortcut,
                                form.wifi,
                                form.volume,
                                form.star,
                                form.mail,
                                form.save,
                                form.name->lineEdit() };
    QCOMPARE(tabStops(form, int(expected.size())), expected);
}

void TestFormFocus::goesBackwards()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.shortcut->setFocus();
    const QWidgetList expected{ form.shortcut, form.password->lineEdit(), form.name->lineEdit(),
                                form.save, form.mail };
    QCOMPARE(tabStops(form, int(expected.size()), Qt::Key_Backtab), expected);
}

/** As the code does it that uic writes, before anybody can make a support. */
void TestFormFocus::followsAnOrderSetBefore()
{
    WidgetForm form;
    QWidget::setTabOrder(form.password, form.shortcut);
    QWidget::setTabOrder(form.shortcut, form.name);
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.password->setFocus();
    const QWidgetList expected{ form.password->lineEdit(), form.shortcut, form.name->lineEdit() };
    QCOMPARE(tabStops(form, int(expected.size())), expected);
}

void TestFormFocus::followsAnOrderSetAfterwards()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    QWidget::setTabOrder(form.password, form.save);
    QWidget::setTabOrder(form.save, form.name);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.password->setFocus();
    const QWidgetList expected{ form.password->lineEdit(), form.save, form.name->lineEdit() };
    QCOMPARE(tabStops(form, int(expected.size())), expected);
}

void TestFormFocus::restoresTheOrder_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 20; ++seed) {
        QTest::addRow("order %u", seed) << seed;
    }
}

void TestFormFocus::restoresTheOrder()
{
    QFETCH(uint, seed);
    WidgetForm form;
    new OlvLineEdit(&form);
    new OlvLineEdit(&form);
    const auto all = form.findChildren<QWidget *>();
    QRandomGenerator random(seed);
    for (int i = 0; i < 2 * all.size(); ++i) {
        QWidget::setTabOrder(all.at(random.bounded(all.size())),
                             all.at(random.bounded(all.size())));
    }
    const QWidgetList before = focusChain(form);
    const auto isBehindItsFrame = [](const OlvLineEdit *edit) {
        return edit->nextInFocusChain() == edit->lineEdit();
    };
    const bool isMoved = !isBehindItsFrame(form.name) || !isBehindItsFrame(form.password);

    auto *support = new OlvFormSupport(&form);
    QVERIFY(isBehindItsFrame(form.name) && isBehindItsFrame(form.password));
    QVERIFY(!isMoved || focusChain(form) != before);
    support->setFeatures({});
    QCOMPARE(focusChain(form), before);
    support->setFeatures(OlvFormSupport::AllFeatures);
    delete support;
    QCOMPARE(focusChain(form), before);
}

void TestFormFocus::leavesAnOrderSetAfterwards()
{
    WidgetForm form;
    QWidget::setTabOrder(form.password, form.name); // has taken the frame from its text
    auto *support = new OlvFormSupport(&form);
    QWidget::setTabOrder(form.name->lineEdit(), form.save);
    QWidget::setTabOrder(form.save, form.password->lineEdit());
    const QWidgetList set = focusChain(form);
    delete form.name;
    delete support;
    QCOMPARE(form.save->nextInFocusChain(), form.password->lineEdit());
    QCOMPARE(set.indexOf(form.password->lineEdit()), set.indexOf(form.save) + 1);
}

void TestFormFocus::leavesAnOrderSetOnceItIsRestored()
{
    WidgetForm form;
    QWidget::setTabOrder(form.password, form.name);
    auto *support = new OlvFormSupport(&form);
    support->setFeatures({});
    QVERIFY(form.password->nextInFocusChain() != form.password->lineEdit());
    QWidget::setTabOrder(form.password, form.password->lineEdit());
    QCOMPARE(form.password->nextInFocusChain(), form.password->lineEdit());
    delete support;
    QCOMPARE(form.password->nextInFocusChain(), form.password->lineEdit());
}

void TestFormFocus::isInTheTextOfALineEdit()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.name->setFocus();
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QCOMPARE(QApplication::focusWidget(), form.name->lineEdit());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Li Wei"));
    QCOMPARE(form.name->getText(), QStringLiteral("Li Wei"));
}

void TestFormFocus::goesOnToTheTextOfTheLineEditThatHasIt()
{
    WidgetForm form;
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.name->setFocus();
    QCOMPARE(QApplication::focusWidget(), form.name);
    auto *support = new OlvFormSupport(&form);
    QCOMPARE(QApplication::focusWidget(), form.name->lineEdit());
    delete support;
    form.name->setFocus();
    QCOMPARE(QApplication::focusWidget(), form.name);
    QVERIFY(form.password->findChild<OlvSimpleIconButton *>()->focusPolicy() != Qt::NoFocus);
}

void TestFormFocus::leavesAPolicyOfTheApplication()
{
    WidgetForm form;
    form.save->setFocusPolicy(Qt::ClickFocus);
    form.name->setFocusPolicy(Qt::NoFocus);
    auto *support = new OlvFormSupport(&form);
    QCOMPARE(form.save->focusPolicy(), Qt::ClickFocus);
    QVERIFY(!form.name->focusProxy());
    form.wifi->setFocusPolicy(Qt::TabFocus);
    const Qt::FocusPolicy natural = form.volume->focusPolicy();
    QVERIFY(natural != Qt::NoFocus);
    support->setFeatures({});
    QCOMPARE(form.volume->focusPolicy(), Qt::NoFocus);
    form.volume->setFocusPolicy(natural); // its own, even if it is the same
    support->setFeatures(OlvFormSupport::AllFeatures);
    delete support;
    QCOMPARE(form.volume->focusPolicy(), natural);
    QCOMPARE(form.save->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(form.wifi->focusPolicy(), Qt::TabFocus);
    QCOMPARE(form.name->focusPolicy(), Qt::NoFocus);
}

void TestFormFocus::leavesAProxyOfTheApplication()
{
    WidgetForm form;
    OlvLineEdit another(&form);
    form.name->setFocusProxy(form.save);
    auto *support = new OlvFormSupport(&form);
    QCOMPARE(form.name->focusProxy(), form.save);
    form.password->setFocusProxy(form.save);
    QVERIFY(another.focusProxy());
    support->setFeatures({});
    another.setFocusProxy(another.lineEdit()); // its own, even if it is the same
    support->setFeatures(OlvFormSupport::AllFeatures);
    delete support;
    QCOMPARE(another.focusProxy(), another.lineEdit());
    QCOMPARE(form.name->focusProxy(), form.save);
    QCOMPARE(form.password->focusProxy(), form.save);
}

void TestFormFocus::leavesAShortcutEdit()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.shortcut->setFocus();
    QTest::keyClick(&form, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), form.wifi);
    form.shortcut->setFocus();
    QTest::keyClick(&form, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), form.password->lineEdit());
}

void TestFormFocus::bringsNoKeyToAShortcutEdit()
{
    WidgetForm form;
    auto *support = new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    ReleaseWatch watch;
    // behind the filter of the support
    form.shortcut->removeEventFilter(support);
    form.shortcut->installEventFilter(&watch);
    form.shortcut->installEventFilter(support);

    form.shortcut->setFocus();
    sendKey(form.shortcut, QEvent::KeyRelease, Qt::Key_Tab);
    QCOMPARE(watch.keys, QVector<int>());
    sendKey(form.shortcut, QEvent::KeyPress, Qt::Key_F5);
    sendKey(form.shortcut, QEvent::KeyRelease, Qt::Key_F5);
    QCOMPARE(watch.keys, QVector<int>{ Qt::Key_F5 });
}

void TestFormFocus::followsMnemonics()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.save->setFocus();
    const auto jump = [&](Qt::Key key) {
        QTest::keyClick(&form, key, Qt::AltModifier);
        return QApplication::focusWidget();
    };
    QCOMPARE(jump(Qt::Key_P), form.password->lineEdit());
    QCOMPARE(jump(Qt::Key_W), form.wifi);
    QCOMPARE(jump(Qt::Key_V), form.volume);
    QCOMPARE(jump(Qt::Key_M), form.mail);
    QCOMPARE(jump(Qt::Key_S), form.save);
    QCOMPARE(jump(Qt::Key_N), form.name->lineEdit());
    QCOMPARE(jump(Qt::Key_H), form.shortcut);
}

void TestFormFocus::followsTheMouse()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    for (QWidget *widget : { static_cast<QWidget *>(form.save), static_cast<QWidget *>(form.mail),
                             static_cast<QWidget *>(form.wifi) }) {
        QTest::mouseClick(widget, Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), widget);
    }
}

ADD_TEST(TestFormFocus, QApplication)
#include "tst_formfocus.moc"
