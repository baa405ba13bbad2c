// SPDX-License-Identifier: MIT
#include "deletion.h"
#include "fakeshortcut.h"
#include "testprogram.h"

#include <OlvWidgets>

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {

using namespace Deletion;

template <typename Widget> Emission inputMethod(const char *name, const QVector<Victim> &helpers)
{
    return { QByteArray(name) + "::inputMethodCommit", make<Widget>,
             toSignal<Widget>(&OlvWidget::inputMethodCommit),
             [](QWidget *sender) {
                 QInputMethodEvent event;
                 event.setCommitString(QStringLiteral("x"));
                 QCoreApplication::sendEvent(sender, &event);
             },
             helpers };
}

QVector<Victim> editHelpers()
{
    return { { "text", ofClass<QLineEdit>() }, { "button", ofClass<OlvSimpleIconButton>() } };
}

QVector<Victim> switchHelpers()
{
    return { { "knob", inProperty<SwitchRound>("round") },
             { "filter", ofClass<OlvPluginEventFilter>() } };
}

QVector<Victim> shortcutHelper()
{
    return { { "shortcut", [](const QWidget *edit) {
                  return OlvShortcut::fromAddress(edit->property("OlvShortcut").toULongLong());
              } } };
}

QVector<Emission> inputMethodEmissions()
{
    return {
        inputMethod<OlvButton>("OlvButton", {}),
        inputMethod<OlvIconButton>("OlvIconButton",
                                   { { "timer", inProperty<QTimer>("clickTimer") } }),
        inputMethod<OlvLineEdit>("OlvLineEdit", editHelpers()),
        inputMethod<OlvShortcutEdit>("OlvShortcutEdit", {}),
        inputMethod<OlvSlider>("OlvSlider", { { "knob", inProperty<SliderRound>("SliderRound") } }),
        inputMethod<OlvSwitch>("OlvSwitch", switchHelpers()),
    };
}

QVector<Emission> buttonEmissions()
{
    const auto makeCheckable = [](QWidget *parent) -> QWidget * {
        auto *button = new OlvButton(QStringLiteral("text"), parent);
        button->setCheckable(true);
        return button;
    };
    const auto byCode = [](QWidget *sender) {
        auto *button = static_cast<OlvButton *>(sender);
        button->click(!button->isChecked());
    };
    const auto clicked = toSignal<OlvButton>(&OlvButton::clicked);
    const auto toggled = toSignal<OlvButton>(&OlvButton::toggled);
    const QVector<Victim> timer{ { "timer", inProperty<QTimer>("clickTimer") } };
    const auto makeStar = [](QWidget *parent) -> QWidget * {
        return new OlvSimpleIconButton(QStringLiteral("a"), QFont(), parent);
    };
    const auto toggleThenSlot = [](QWidget *sender, const Slot &slot) {
        auto *star = static_cast<OlvSimpleIconButton *>(sender);
        star->setToggle(QStringLiteral("b"));
        QObject::connect(star, &QPushButton::clicked, star, slot);
    };
    const auto slotThenToggle = [](QWidget *sender, const Slot &slot) {
        auto *star = static_cast<OlvSimpleIconButton *>(sender);
        QObject::connect(star, &QPushButton::clicked, star, slot);
        star->setToggle(QStringLiteral("b"));
    };
    const auto bursts = [](int releases) {
        return [=](QWidget *sender) {
            for (int i = 0; i < releases; ++i) {
                clickMouse(sender);
            }
            hurry(sender, "clickTimer");
        };
    };
    return {
        { "OlvButton::clicked, mouse", make<OlvButton>, clicked, clickMouse, {} },
        { "OlvButton::clicked, checkable, mouse", makeCheckable, clicked, clickMouse, {} },
        { "OlvButton::clicked, code", make<OlvButton>, clicked, byCode, {} },
        { "OlvButton::clicked, checkable, code", makeCheckable, clicked, byCode, {} },
        { "OlvButton::toggled, mouse", makeCheckable, toggled, clickMouse, {} },
        { "OlvButton::toggled, code", makeCheckable, toggled, byCode, {} },
        { "OlvIconButton::clicked", make<OlvIconButton>,
          toSignal<OlvIconButton>(&OlvIconButton::clicked), bursts(1), timer },
        { "OlvIconButton::dClicked", make<OlvIconButton>,
          toSignal<OlvIconButton>(&OlvIconButton::dClicked), bursts(2), timer },
        { "OlvSimpleIconButton::clicked, after the toggle",
          makeStar,
          toggleThenSlot,
          clickMouse,
          {} },
        { "OlvSimpleIconButton::clicked, before the toggle",
          makeStar,
          slotThenToggle,
          clickMouse,
          {} },
    };
}

QVector<Emission> inputEmissions()
{
    const auto onPwdButton = [](QWidget *sender, const Slot &slot) {
        static_cast<OlvLineEdit *>(sender)->setPassWord(true);
        QObject::connect(sender->findChild<OlvSimpleIconButton *>(), &QPushButton::clicked, sender,
                         slot);
    };
    const auto pressPwdButton = [](QWidget *sender) {
        if (auto *button = sender->findChild<OlvSimpleIconButton *>()) {
            button->click();
        }
    };
    const auto hand = [](QWidget *sender) {
        static_cast<OlvShortcutEdit *>(sender)->setShortcut(
            new FakeShortcut(QStringLiteral("handed")));
    };
    const auto handAddress = [](QWidget *sender) {
        static_cast<OlvShortcutEdit *>(sender)->setValue(
            addressOf(new FakeShortcut(QStringLiteral("addressed"))));
    };
    const auto changed = toSignal<OlvShortcutEdit>(&OlvShortcutEdit::shortcutChanged);
    const auto value = toSignal<OlvWidget>(&OlvWidget::valueChanged);
    const auto holding = [](QWidget *parent) -> QWidget * {
        return new OlvShortcutEdit(new FakeShortcut(QStringLiteral("before")), parent);
    };
    return {
        { "password button of OlvLineEdit", make<OlvLineEdit>, onPwdButton, pressPwdButton,
          editHelpers() },
        { "OlvShortcutEdit::shortcutChanged", make<OlvShortcutEdit>, changed, hand,
          shortcutHelper() },
        { "OlvShortcutEdit::shortcutChanged, in place of one", holding, changed, hand,
          shortcutHelper() },
        { "OlvShortcutEdit::shortcutChanged, by setValue", holding, changed, handAddress,
          shortcutHelper() },
        { "OlvShortcutEdit::valueChanged", make<OlvShortcutEdit>, value, hand, shortcutHelper() },
        { "OlvShortcutEdit::valueChanged, by setValue", holding, value, handAddress,
          shortcutHelper() },
    };
}

QVector<Emission> valueEmissions()
{
    const auto byTicks = [](QWidget *sender) {
        for (int i = 0; i < 5; ++i) {
            QTimerEvent event(1);
            QCoreApplication::sendEvent(sender, &event);
        }
    };
    const auto byTimer = [](QWidget *sender) {
        auto *toggle = static_cast<OlvSwitch *>(sender);
        toggle->setValue(!toggle->getValue().toBool());
    };
    const auto value = toSignal<OlvWidget>(&OlvWidget::valueChanged);
    const auto changed = toSignal<OlvSwitch>(&OlvSwitch::changed);
    return {
        { "OlvSwitch::valueChanged", make<OlvSwitch>, value, byTicks, switchHelpers() },
        { "OlvSwitch::valueChanged, real timer", make<OlvSwitch>, value, byTimer, switchHelpers() },
        { "OlvSwitch::changed", make<OlvSwitch>, changed, byTicks, switchHelpers() },
        { "OlvSwitch::changed, real timer", make<OlvSwitch>, changed, byTimer, switchHelpers() },
    };
}

} // namespace

class TestDeletionInSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data();
    void survives();
};

void TestDeletionInSlots::survives_data()
{
    Deletion::addRows(inputMethodEmissions() + buttonEmissions() + inputEmissions()
                      + valueEmissions());
}

void TestDeletionInSlots::survives()
{
    QFETCH(Deletion::Emission, emission);
    QFETCH(Deletion::Finder, victim);
    Deletion::check(emission, victim);
}

ADD_TEST(TestDeletionInSlots, QApplication)
#include "tst_deletioninslots.moc"
