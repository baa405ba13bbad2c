// SPDX-License-Identifier: MIT
#include "deletion.h"

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

QVector<Emission> keyEmissions()
{
    return {
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

QVector<Emission> dataEmissions()
{
    return {
        { "model of OlvSwitch", makeMapped<OlvSwitch>, toModel, byKey(Qt::Key_Space), support() },
        { "model of OlvSlider", makeMapped<OlvSlider>, toModel, byKey(Qt::Key_End), support() },
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
          toClose, [](QWidget *sender) { leave(static_cast<OlvLineEdit *>(sender)->lineEdit()); },
          support() },
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

} // namespace

/** Slots that delete a widget of a form, the form, its support or its mapper, led to by a key. */
class TestDeletionInForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data();
    void survives();
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

QTEST_MAIN(TestDeletionInForms)
#include "tst_deletioninforms.moc"
