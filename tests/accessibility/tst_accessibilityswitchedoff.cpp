// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "fakeshortcut.h"
#include "onevent.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QTest>

#include <functional>
#include <memory>

namespace {

using SwitchOff = void (*)();

/** Whom the library tells first, and the update in which that one switches everything off. */
QAccessible::UpdateHandler told = nullptr;
QAccessible::Event last = QAccessible::InvalidEvent;
SwitchOff switchOff = nullptr;

void switchOffAtTheLast(QAccessibleEvent *event)
{
    told(event);
    if (event->type() == last) {
        switchOff();
    }
}

void tellTheObservers()
{
    QAccessible::setActive(false);
}

/** A widget with a new name and, in the very same event, another change. */
struct Changing
{
    const char *name;
    std::function<QWidget *()> make;
    QEvent::Type renaming;
    std::function<void(QWidget *)> rename;
    std::function<void(QWidget *)> change;
    QAccessible::Event update;
    QStringList words; ///< of the updates, in their order
};

QVector<Changing> changings()
{
    const auto setToolTip = [](QWidget *widget) {
        widget->setToolTip(QStringLiteral("new"));
    };
    return {
        { "button",
          [] { return new OlvButton(QStringLiteral("Save")); },
          QEvent::DynamicPropertyChange,
          [](QWidget *widget) { widget->setProperty("content", QStringLiteral("new")); },
          [](QWidget *widget) { widget->setProperty("isChecked", true); },
          QAccessible::StateChanged,
          { QStringLiteral("name new"), QStringLiteral("state checked") } },
        { "slider",
          [] { return new OlvSlider; },
          QEvent::ToolTipChange,
          setToolTip,
          [](QWidget *widget) { static_cast<OlvSlider *>(widget)->setValue(30); },
          QAccessible::ValueChanged,
          { QStringLiteral("name new"), QStringLiteral("value 30") } },
        { "shortcut edit",
          [] { return new OlvShortcutEdit; },
          QEvent::ToolTipChange,
          setToolTip,
          [](QWidget *widget) {
              auto *edit = static_cast<OlvShortcutEdit *>(widget);
              edit->setShortcut(new FakeShortcut(QStringLiteral("Ctrl+A")));
          },
          QAccessible::TextUpdated,
          { QStringLiteral("name new"), QStringLiteral("text  > Ctrl+A") } },
    };
}

} // namespace

Q_DECLARE_METATYPE(SwitchOff)
Q_DECLARE_METATYPE(Changing)

/** Accessibility that the listener switches off while the library tells it of a change. */
class TestAccessibilitySwitchedOff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsNoMore_data();
    void tellsNoMore();
    void tellsAgainOnceItIsSwitchedOn();
};

void TestAccessibilitySwitchedOff::tellsNoMore_data()
{
    QTest::addColumn<Changing>("changing");
    QTest::addColumn<int>("updates");
    QTest::addColumn<SwitchOff>("way");
    const QVector<Changing> all = changings();
    for (const Changing &changing : all) {
        for (const int updates : { 1, 2 }) {
            QTest::addRow("%s, after update %d, by the program", changing.name, updates)
                << changing << updates << SwitchOff(tellTheObservers);
            QTest::addRow("%s, after update %d, by the platform", changing.name, updates)
                << changing << updates << SwitchOff(Assistant::leave);
        }
    }
}

void TestAccessibilitySwitchedOff::tellsNoMore()
{
    QFETCH(Changing, changing);
    QFETCH(int, updates);
    QFETCH(SwitchOff, way);
    Assistant assistant;
    told = QAccessible::installUpdateHandler(switchOffAtTheLast);
    last = updates == 1 ? QAccessible::NameChanged : changing.update;
    switchOff = way;
    const std::unique_ptr<QWidget> widget(changing.make());
    accessible(widget.get());
    const OnEvent alsoChanges(widget.get(), changing.renaming,
                              [&] { changing.change(widget.get()); });
    changing.rename(widget.get());
    QVERIFY(alsoChanges.happened());
    QCOMPARE(assistant.heardOf(widget.get()), changing.words.mid(0, updates));
    widget->setProperty("content", QStringLiteral("newer"));
    widget->setToolTip(QStringLiteral("newer"));
    QCOMPARE(assistant.heardOf(widget.get()), QStringList());
}

void TestAccessibilitySwitchedOff::tellsAgainOnceItIsSwitchedOn()
{
    OlvButton button(QStringLiteral("Save"));
    accessible(&button);
    {
        const Assistant assistant;
        told = QAccessible::installUpdateHandler(switchOffAtTheLast);
        last = QAccessible::NameChanged;
        switchOff = Assistant::leave;
        button.setText(QStringLiteral("Store"));
    }
    button.setText(QStringLiteral("Keep"));
    Assistant assistant;
    button.setText(QStringLiteral("Save as"));
    QCOMPARE(assistant.heardOf(&button), QStringList{ QStringLiteral("name Save as") });
}

ADD_TEST(TestAccessibilitySwitchedOff, QApplication)
#include "tst_accessibilityswitchedoff.moc"
