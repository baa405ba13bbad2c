// SPDX-License-Identifier: MIT
#include "deletion.h"
#include "fakeshortcut.h"

#include <OlvWidgets>

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {

using namespace Deletion;

template <typename Widget>
Emission inputMethod(const char *name, const QMap<QString, Helper> &helpers)
{
    return { QStringLiteral("%1::inputMethodCommit").arg(QLatin1String(name)), make<Widget>,
             toSignal<Widget>(&OlvWidget::inputMethodCommit),
             [](QWidget *sender) {
                 QInputMethodEvent event;
                 event.setCommitString(QStringLiteral("x"));
                 QCoreApplication::sendEvent(sender, &event);
             },
             helpers };
}

QMap<QString, Helper> editHelpers()
{
    return { { QStringLiteral("text"), ofClass<QLineEdit>() },
             { QStringLiteral("button"), ofClass<OlvSimpleIconButton>() } };
}

QMap<QString, Helper> switchHelpers()
{
    return { { QStringLiteral("knob"), inProperty<SwitchRound>("round") },
             { QStringLiteral("filter"), ofClass<OlvPluginEventFilter>() } };
}

QMap<QString, Helper> shortcutHelper()
{
    return { { QStringLiteral("shortcut"), [](const QWidget *edit) -> QObject * {
                  return OlvShortcut::fromAddress(edit->property("OlvShortcut").toULongLong());
              } } };
}

QVector<Emission> inputMethodEmissions()
{
    return {
        inputMethod<OlvButton>("OlvButton", {}),
        inputMethod<OlvIconButton>(
            "OlvIconButton", { { QStringLiteral("timer"), inProperty<QTimer>("clickTimer") } }),
        inputMethod<OlvLineEdit>("OlvLineEdit", editHelpers()),
        inputMethod<OlvShortcutEdit>("OlvShortcutEdit", {}),
        inputMethod<OlvSlider>(
            "OlvSlider", { { QStringLiteral("knob"), inProperty<SliderRound>("SliderRound") } }),
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
    const QMap<QString, Helper> timer{ { QStringLiteral("timer"),
                                         inProperty<QTimer>("clickTimer") } };
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
        { QStringLiteral("OlvButton::clicked, mouse"), make<OlvButton>, clicked, clickMouse, {} },
        { QStringLiteral("OlvButton::clicked, checkable, mouse"),
          makeCheckable,
          clicked,
          clickMouse,
          {} },
        { QStringLiteral("OlvButton::clicked, code"), make<OlvButton>, clicked, byCode, {} },
        { QStringLiteral("OlvButton::clicked, checkable, code"),
          makeCheckable,
          clicked,
          byCode,
          {} },
        { QStringLiteral("OlvButton::toggled, mouse"), makeCheckable, toggled, clickMouse, {} },
        { QStringLiteral("OlvButton::toggled, code"), makeCheckable, toggled, byCode, {} },
        { QStringLiteral("OlvIconButton::clicked"), make<OlvIconButton>,
          toSignal<OlvIconButton>(&OlvIconButton::clicked), bursts(1), timer },
        { QStringLiteral("OlvIconButton::dClicked"), make<OlvIconButton>,
          toSignal<OlvIconButton>(&OlvIconButton::dClicked), bursts(2), timer },
        { QStringLiteral("OlvSimpleIconButton::clicked, after the toggle"),
          makeStar,
          toggleThenSlot,
          clickMouse,
          {} },
        { QStringLiteral("OlvSimpleIconButton::clicked, before the toggle"),
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
        { QStringLiteral("password button of OlvLineEdit"), make<OlvLineEdit>, onPwdButton,
          pressPwdButton, editHelpers() },
        { QStringLiteral("OlvShortcutEdit::shortcutChanged"), make<OlvShortcutEdit>, changed, hand,
          shortcutHelper() },
        { QStringLiteral("OlvShortcutEdit::shortcutChanged, in place of one"), holding, changed,
          hand, shortcutHelper() },
        { QStringLiteral("OlvShortcutEdit::shortcutChanged, by setValue"), holding, changed,
          handAddress, shortcutHelper() },
        { QStringLiteral("OlvShortcutEdit::valueChanged"), make<OlvShortcutEdit>, value, hand,
          shortcutHelper() },
        { QStringLiteral("OlvShortcutEdit::valueChanged, by setValue"), holding, value, handAddress,
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
        { QStringLiteral("OlvSwitch::valueChanged"), make<OlvSwitch>, value, byTicks,
          switchHelpers() },
        { QStringLiteral("OlvSwitch::valueChanged, real timer"), make<OlvSwitch>, value, byTimer,
          switchHelpers() },
        { QStringLiteral("OlvSwitch::changed"), make<OlvSwitch>, changed, byTicks,
          switchHelpers() },
        { QStringLiteral("OlvSwitch::changed, real timer"), make<OlvSwitch>, changed, byTimer,
          switchHelpers() },
    };
}

const QVector<Emission> &emissions()
{
    static const QVector<Emission> all =
        inputMethodEmissions() + buttonEmissions() + inputEmissions() + valueEmissions();
    return all;
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
    Deletion::addRows(emissions());
}

void TestDeletionInSlots::survives()
{
    QFETCH(int, index);
    QFETCH(QString, victim);
    Deletion::check(emissions().at(index), victim);
}

QTEST_MAIN(TestDeletionInSlots)
#include "tst_deletioninslots.moc"
