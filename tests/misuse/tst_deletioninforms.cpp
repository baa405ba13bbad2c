// SPDX-License-Identifier: MIT
#include "deletion.h"
#include "fakeshortcut.h"
#include "testprogram.h"

#include <OlvWidgets>

#include <QDataWidgetMapper>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>

namespace {

using namespace Deletion;

template <typename Widget> QWidget *makeInForm(QWidget *parent)
{
    auto *widget = new Widget(parent);
    new OlvFormSupport(parent);
    return widget;
}

template <typename Object> Object *amongChildrenOf(const QObject *parent)
{
    for (QObject *child : parent->children()) {
        if (auto *found = dynamic_cast<Object *>(child)) {
            return found;
        }
    }
    return nullptr;
}

QVector<Victim> support()
{
    return { { "support", [](const QWidget *widget) -> QObject * {
                  return amongChildrenOf<OlvFormSupport>(widget->parentWidget());
              } } };
}

QVector<Victim> supportAndMapper()
{
    return support()
        + QVector<Victim>{ { "mapper", [](const QWidget *widget) -> QObject * {
                                return amongChildrenOf<QDataWidgetMapper>(widget->window());
                            } } };
}

std::function<void(QWidget *)> byKey(Qt::Key key)
{
    return [=](QWidget *sender) {
        const QPointer<QWidget> receiver(sender);
        for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            if (receiver) {
                QKeyEvent event(type, key, Qt::NoModifier);
                QCoreApplication::sendEvent(receiver, &event);
            }
        }
    };
}

QWidget *makeCheckable(QWidget *parent)
{
    auto *button = static_cast<OlvButton *>(makeInForm<OlvButton>(parent));
    button->setCheckable(true);
    return button;
}

QLineEdit *textOf(QWidget *line)
{
    return static_cast<OlvLineEdit *>(line)->lineEdit();
}

template <typename Signal> std::function<void(QWidget *, const Slot &)> toText(Signal signal)
{
    return [=](QWidget *sender, const Slot &slot) {
        QObject::connect(textOf(sender), signal, sender, slot);
    };
}

/** As the user types it: the text may go at any key. */
void typeText(QWidget *sender)
{
    const QPointer<QWidget> text(textOf(sender));
    for (const Qt::Key key : { Qt::Key_A, Qt::Key_Return }) {
        if (text) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier,
                            key == Qt::Key_A ? QStringLiteral("a") : QString());
            QCoreApplication::sendEvent(text, &event);
        }
    }
}

void press(QWidget *sender)
{
    static_cast<OlvShortcutEdit *>(sender)->setShortcut(new FakeShortcut(QStringLiteral("F5")));
}

QVector<Emission> keyEmissions()
{
    return {
        { "OlvButton::toggled, Space", makeCheckable, toSignal<OlvButton>(&OlvButton::toggled),
          byKey(Qt::Key_Space), support() },
        { "QLineEdit::editingFinished in OlvLineEdit", makeInForm<OlvLineEdit>,
          toText(&QLineEdit::editingFinished), typeText, support() },
        { "OlvShortcutEdit::shortcutChanged", makeInForm<OlvShortcutEdit>,
          toSignal<OlvShortcutEdit>(&OlvShortcutEdit::shortcutChanged), press, support() },
        { "OlvButton::clicked, Space", makeInForm<OlvButton>,
          toSignal<OlvButton>(&OlvButton::clicked), byKey(Qt::Key_Space), support() },
        { "OlvButton::clicked, Enter", makeInForm<OlvButton>,
          toSignal<OlvButton>(&OlvButton::clicked), byKey(Qt::Key_Return), support() },
        { "OlvIconButton::clicked, Space", makeInForm<OlvIconButton>,
          toSignal<OlvIconButton>(&OlvIconButton::clicked), byKey(Qt::Key_Space), support() },
        { "OlvIconButton::clicked, Enter", makeInForm<OlvIconButton>,
          toSignal<OlvIconButton>(&OlvIconButton::clicked), byKey(Qt::Key_Return), support() },
        { "OlvSimpleIconButton::clicked, Space", makeInForm<OlvSimpleIconButton>,
          toSignal<QPushButton>(&QPushButton::clicked), byKey(Qt::Key_Space), support() },
        { "OlvSimpleIconButton::clicked, Enter", makeInForm<OlvSimpleIconButton>,
          toSignal<QPushButton>(&QPushButton::clicked), byKey(Qt::Key_Return), support() },
        { "OlvSwitch::valueChanged, Space", makeInForm<OlvSwitch>,
          toSignal<OlvWidget>(&OlvWidget::valueChanged), byKey(Qt::Key_Space), support() },
        { "OlvSwitch::changed, Space", makeInForm<OlvSwitch>,
          toSignal<OlvSwitch>(&OlvSwitch::changed), byKey(Qt::Key_Space), support() },
    };
}

/** A widget in a form that a mapper binds to a model; both are the window's. */
template <typename Widget> QWidget *makeMapped(QWidget *parent)
{
    QWidget *widget = makeInForm<Widget>(parent);
    auto *model = new QStandardItemModel(1, 1, parent->window());
    model->setData(model->index(0, 0), 0, Qt::EditRole);
    auto *mapper = new QDataWidgetMapper(parent->window());
    mapper->setModel(model);
    mapper->setItemDelegate(new OlvValueDelegate(mapper));
    mapper->addMapping(widget, 0);
    mapper->toFirst();
    return widget;
}

void leave(QWidget *sender)
{
    QFocusEvent event(QEvent::FocusOut);
    QCoreApplication::sendEvent(sender, &event);
}

void toModel(QWidget *sender, const Slot &slot)
{
    auto *model = amongChildrenOf<QStandardItemModel>(sender->window());
    QObject::connect(model, &QStandardItemModel::dataChanged, sender, slot);
}

void toCommit(QWidget *sender, const Slot &slot)
{
    auto *mapper = amongChildrenOf<QDataWidgetMapper>(sender->window());
    QObject::connect(mapper->itemDelegate(), &QAbstractItemDelegate::commitData, sender, slot);
}

void toClose(QWidget *sender, const Slot &slot)
{
    auto *mapper = amongChildrenOf<QDataWidgetMapper>(sender->window());
    QObject::connect(mapper->itemDelegate(), &QAbstractItemDelegate::closeEditor, sender, slot);
}

/** A widget with a delegate that has no parent, so that no other victim deletes it, too. */
template <typename Widget> QWidget *makeDelegated(QWidget *parent)
{
    QWidget *widget = makeMapped<Widget>(parent);
    auto *mapper = amongChildrenOf<QDataWidgetMapper>(parent->window());
    mapper->itemDelegate()->setParent(nullptr);
    return widget;
}

void toEndOfDelegate(QWidget *sender, const Slot &slot)
{
    auto *mapper = amongChildrenOf<QDataWidgetMapper>(sender->window());
    QObject::connect(mapper->itemDelegate(), &QObject::destroyed, sender, slot);
}

void deleteDelegate(QWidget *sender)
{
    delete amongChildrenOf<QDataWidgetMapper>(sender->window())->itemDelegate();
}

/** As a slot of the application's does it for a button. */
void flipValue(QWidget *sender)
{
    auto *button = static_cast<OlvButton *>(sender);
    button->setValue(!button->getValue().toBool());
}

QVector<Emission> dataEmissions()
{
    return {
        { "model of OlvSwitch", makeMapped<OlvSwitch>, toModel, byKey(Qt::Key_Space), support() },
        { "model of OlvSlider", makeMapped<OlvSlider>, toModel, byKey(Qt::Key_End), support() },
        { "model of OlvLineEdit", makeMapped<OlvLineEdit>, toModel, typeText, support() },
        { "model of OlvShortcutEdit", makeMapped<OlvShortcutEdit>, toModel, press, support() },
        { "model of OlvIconButton", makeMapped<OlvIconButton>, toModel, byKey(Qt::Key_Space),
          support() },
        { "model of OlvButton", makeMapped<OlvButton>, toModel, flipValue, support() },
        { "OlvSwitch::valueChanged, mapped", makeMapped<OlvSwitch>,
          toSignal<OlvWidget>(&OlvWidget::valueChanged), byKey(Qt::Key_Space), supportAndMapper() },
        { "OlvShortcutEdit::valueChanged, mapped", makeMapped<OlvShortcutEdit>,
          toSignal<OlvWidget>(&OlvWidget::valueChanged), press, supportAndMapper() },
        { "OlvValueDelegate::commitData of OlvLineEdit", makeMapped<OlvLineEdit>, toCommit,
          typeText, supportAndMapper() },
        { "OlvValueDelegate::commitData of OlvShortcutEdit", makeMapped<OlvShortcutEdit>, toCommit,
          press, supportAndMapper() },
        { "OlvValueDelegate::commitData of OlvIconButton", makeMapped<OlvIconButton>, toCommit,
          byKey(Qt::Key_Space), supportAndMapper() },
        { "OlvValueDelegate::commitData of OlvButton", makeMapped<OlvButton>, toCommit, flipValue,
          supportAndMapper() },
        { "OlvValueDelegate::commitData of OlvSwitch", makeMapped<OlvSwitch>, toCommit,
          byKey(Qt::Key_Space), supportAndMapper() },
        { "OlvValueDelegate::commitData of OlvSlider", makeMapped<OlvSlider>, toCommit,
          byKey(Qt::Key_End), supportAndMapper() },
        // not the mapper, whose delegate Qt goes on to use here
        { "OlvValueDelegate::closeEditor, focus leaves OlvSwitch", makeMapped<OlvSwitch>, toClose,
          leave, support() },
        { "OlvValueDelegate::closeEditor, focus leaves OlvShortcutEdit",
          makeMapped<OlvShortcutEdit>, toClose, leave, support() },
        { "OlvValueDelegate::closeEditor, focus leaves OlvLineEdit", makeMapped<OlvLineEdit>,
          toClose, [](QWidget *sender) { leave(textOf(sender)); }, support() },
        { "OlvValueDelegate::closeEditor, focus leaves QLineEdit", makeMapped<QLineEdit>, toClose,
          leave, support() },
        { "OlvValueDelegate::commitData, Enter in OlvSwitch", makeMapped<OlvSwitch>, toCommit,
          byKey(Qt::Key_Return), support() },
        { "OlvValueDelegate::commitData, Tab in OlvSwitch", makeMapped<OlvSwitch>, toCommit,
          byKey(Qt::Key_Tab), support() },
        // no helper, after which the same would be done again: the delegate has gone
        { "OlvValueDelegate::destroyed, with OlvSwitch",
          makeDelegated<OlvSwitch>,
          toEndOfDelegate,
          deleteDelegate,
          {} },
        { "OlvValueDelegate::destroyed, with OlvLineEdit",
          makeDelegated<OlvLineEdit>,
          toEndOfDelegate,
          deleteDelegate,
          {} },
    };
}

/** What a slot does to the widget that emits, while a support serves it. */
struct Act
{
    const char *name;
    std::function<void(QWidget *sender, QWidget *other)> run;
};

const QVector<Act> &acts()
{
    static const QVector<Act> all{
        { "it leaves the form",
          [](QWidget *sender, QWidget *other) {
              sender->setParent(other);
          } },
        { "it enters another form",
          [](QWidget *sender, QWidget *other) {
              new OlvFormSupport(other);
              sender->setParent(other);
              sender->show();
          } },
        { "it becomes a window",
          [](QWidget *sender, QWidget * /*other*/) {
              sender->setParent(sender->parentWidget(), Qt::Window);
          } },
        { "it gets a support of its own",
          [](QWidget *sender, QWidget * /*other*/) {
              new OlvFormSupport(sender);
          } },
        { "another support comes and the first one goes",
          [](QWidget *sender, QWidget * /*other*/) {
              QWidget *form = sender->parentWidget();
              new OlvFormSupport(form);
              delete amongChildrenOf<OlvFormSupport>(form);
          } },
        { "a widget comes in",
          [](QWidget *sender, QWidget * /*other*/) {
              (new OlvLineEdit(sender->parentWidget()))->show();
          } },
    };
    return all;
}

} // namespace

/** Slots that delete a widget of a form, the form, its support or its mapper, led to by a key. */
class TestDeletionInForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data();
    void survives();
    void survivesAMove_data();
    void survivesAMove();
};

void TestDeletionInForms::survives_data()
{
    Deletion::addRows(keyEmissions() + dataEmissions());
}

void TestDeletionInForms::survives()
{
    QFETCH(Deletion::Emission, emission);
    QFETCH(Deletion::Finder, victim);
    Deletion::check(emission, victim);
}

void TestDeletionInForms::survivesAMove_data()
{
    QTest::addColumn<Deletion::Emission>("emission");
    QTest::addColumn<int>("act");
    const QVector<Emission> emissions = keyEmissions() + dataEmissions();
    for (const Emission &emission : emissions) {
        for (int act = 0; act < acts().size(); ++act) {
            QTest::addRow("%s: %s", emission.name.constData(), acts().at(act).name)
                << emission << act;
        }
    }
}

void TestDeletionInForms::survivesAMove()
{
    QFETCH(Deletion::Emission, emission);
    QFETCH(int, act);
    QWidget other;
    QWidget window;
    QWidget *form = new QWidget(&window);
    const QPointer<QWidget> sender(emission.make(form));
    window.resize(300, 200);
    other.resize(300, 200);
    window.show();
    other.show();
    bool emitted = false;
    emission.connectTo(sender, [&] {
        if (!std::exchange(emitted, true)) {
            acts().at(act).run(sender, &other);
        }
    });
    emission.emitNow(sender);
    QTRY_VERIFY(emitted);
    QVERIFY(sender);
    sender->show();
    QCoreApplication::processEvents();
    QVERIFY(!sender->grab().isNull());
    QVERIFY(!window.grab().isNull());
    sender->setParent(form, Qt::Widget); // and it is served as before
    sender->show();
    QVERIFY((sender->focusPolicy() & Qt::TabFocus) == Qt::TabFocus);
    QVERIFY(!window.grab().isNull());
}

ADD_TEST(TestDeletionInForms, QApplication)
#include "tst_deletioninforms.moc"
