// SPDX-License-Identifier: MIT
#include <OlvWidgets/forms.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

#include "forms/editorvalue_p.h"
#include "value/valueproperties_p.h"

#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

#include <utility>

namespace {

/** The properties that change with the value, or with the start of a slide towards it. */
bool isOfValue(const QByteArray &property)
{
    return property == "value" || property == ValueProperties::sliderProgress
        || property == ValueProperties::switchIsOn || property == ValueProperties::switchTimerId;
}

/** The types of a part's events that QStyledItemDelegate may consume, or close an editor at. */
bool isHandledByQt(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::ShortcutOverride || type == QEvent::FocusOut;
}

/** Whether a line of text lets its parent have the key after it has handled it. */
bool isEnter(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/** Sent to an editor to see whether a delegate is still an event filter of it. */
class FilterProbe : public QEvent
{
public:
    const QObject *const filter;
    bool isHeard = false;

    explicit FilterProbe(const QObject *wanted)
        : QEvent(probeType())
        , filter(wanted)
    { }

    static Type probeType()
    {
        static const auto type = Type(registerEventType());
        return type;
    }
};

/** A mapper that no longer maps a widget takes the delegate from it, but from no part of it. */
bool isFilterOf(const QObject *filter, QObject *widget)
{
    FilterProbe probe(filter);
    QCoreApplication::sendEvent(widget, &probe);
    return probe.isHeard;
}

/** Whether @p event makes QStyledItemDelegate store what an editor holds, and leave it. */
bool isLeavingKey(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return isEnter(event) || key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

/** Handles an event in place of an OlvValueDelegate, so that that sees the signals first. */
class QtsDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::eventFilter;
};

} // namespace

class Q_DECL_HIDDEN OlvValueDelegate::Private
{
public:
    struct Editor
    {
        QVariant shown; ///< the value as it was when the record was shown or stored last
        QPersistentModelIndex record;
        bool isServed = false;  ///< what the user does in it is submitted
        bool isChanged = false; ///< the user changed it since the record was last shown or stored
        bool isLoading = false;
        bool isDragged = false;
    };

    explicit Private(OlvValueDelegate *delegate)
        : q(delegate)
    { }

    /** Takes note of changes in @p widget from now on; submits none of them. */
    Editor &know(OlvWidget *widget);
    /** Submits what is done in @p widget from now on. */
    Editor &adopt(OlvWidget *widget);
    /** The editor that @p part is, or is a part of; null for every other object. */
    OlvWidget *editorOf(QObject *part) const;
    void commit(OlvWidget *widget);
    /** Has Qt handle an event of @p editor, but not store a text that its validator refuses. */
    bool handleAsQt(OlvWidget *editor, QEvent *event);

    QHash<QObject *, Editor> editors;
    bool isStoring = false; ///< setData() is running; ignore the dataChanged() it causes

private:
    OlvValueDelegate *q;
    /** Ends the connections to the editors with this, since the delegate's destroyed() comes after
     * it, and a slot there may delete an editor. */
    QObject context;
};

OlvValueDelegate::Private::Editor &OlvValueDelegate::Private::know(OlvWidget *widget)
{
    const auto found = editors.find(widget);
    if (found != editors.end()) {
        return *found;
    }
    QObject::connect(widget, &QObject::destroyed, &context,
                     [this, widget] { editors.remove(widget); });
    QObject::connect(widget, &OlvWidget::valueChanged, &context, [this, widget] {
        know(widget).isChanged = true;
        commit(widget);
    });
    return editors[widget];
}

OlvValueDelegate::Private::Editor &OlvValueDelegate::Private::adopt(OlvWidget *widget)
{
    Editor &editor = know(widget);
    if (std::exchange(editor.isServed, true)) {
        return editor;
    }
    // again, in case the mapper was told of the delegate after the widget: Qt takes it once
    widget->installEventFilter(q);
    if (const auto *line = qobject_cast<OlvLineEdit *>(widget)) {
        if (QLineEdit *text = line->lineEdit()) {
            editor.isChanged = editor.isChanged || text->isModified();
            text->installEventFilter(q);
            QObject::connect(text, &QLineEdit::textEdited, &context,
                             [this, widget] { know(widget).isChanged = true; });
            // also after a view has closed the editor, and has taken the delegate from it
            QObject::connect(text, &QLineEdit::editingFinished, &context, [this, widget] {
                if (isFilterOf(q, widget)) {
                    commit(widget);
                }
            });
        }
    }
    for (QObject *child : widget->children()) {
        if (dynamic_cast<SliderRound *>(child)) {
            child->installEventFilter(q);
        }
    }
    return editor;
}

OlvWidget *OlvValueDelegate::Private::editorOf(QObject *part) const
{
    QObject *editor = editors.contains(part) ? part : part->parent();
    return editors.value(editor).isServed ? qobject_cast<OlvWidget *>(editor) : nullptr;
}

void OlvValueDelegate::Private::commit(OlvWidget *widget)
{
    const auto editor = editors.constFind(widget);
    if (editor == editors.cend() || !editor->isServed || editor->isLoading || editor->isDragged) {
        return;
    }
    Q_EMIT q->commitData(widget);
}

bool OlvValueDelegate::Private::handleAsQt(OlvWidget *editor, QEvent *event)
{
    const bool isLeaving = event->type() == QEvent::FocusOut || event->type() == QEvent::Hide;
    if (!isLeaving) {
        if (!isLeavingKey(event)) {
            return q->QStyledItemDelegate::eventFilter(editor, event);
        }
        const QPointer<QObject> self(q);
        const QPointer<QObject> guarded(editor);
        const bool isAcceptable = EditorValue::fixUp(editor);
        return !isAcceptable || !self || !guarded
            || q->QStyledItemDelegate::eventFilter(editor, event);
    }
    // Qt closes an editor that loses the focus also when its text is not stored, and decides itself
    // whether the focus is lost: only its commitData() is held back
    QtsDelegate delegate;
    QObject::connect(&delegate, &QAbstractItemDelegate::commitData, q, [this, editor] {
        const QPointer<QObject> self(q);
        const QPointer<QObject> guarded(editor);
        if (EditorValue::fixUp(editor) && self && guarded) {
            Q_EMIT q->commitData(editor);
        }
    });
    QObject::connect(&delegate, &QAbstractItemDelegate::closeEditor, q,
                     &QAbstractItemDelegate::closeEditor);
    return delegate.eventFilter(editor, event);
}

OlvValueDelegate::OlvValueDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , d(std::make_unique<Private>(this))
{ }

OlvValueDelegate::~OlvValueDelegate() = default;

QWidget *OlvValueDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto *line = qobject_cast<OlvLineEdit *>(editor)) {
        line->setFocusProxy(line->lineEdit());
    } else if (qobject_cast<OlvWidget *>(editor) && editor->focusPolicy() == Qt::NoFocus) {
        editor->setFocusPolicy(Qt::StrongFocus); // a view closes its editor when the focus leaves
    }
    if (editor) {
        editor->setAutoFillBackground(true); // or the item shows through
    }
    return editor;
}

void OlvValueDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *widget = qobject_cast<OlvWidget *>(editor);
    if (!widget) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    // a slot of the widget's may destroy it, or this
    const QPointer<QObject> self(const_cast<OlvValueDelegate *>(this));
    const QPointer<OlvWidget> guarded(widget);
    Private::Editor &adopted = d->adopt(widget);
    const QVariant value = index.data(Qt::EditRole);
    const auto *toggle = qobject_cast<OlvSwitch *>(widget);
    if (toggle && adopted.record == index && toggle->isChecked() == EditorValue::toBool(value)) {
        adopted.shown = toggle->isChecked();
        adopted.isChanged = false;
        return; // it may slide there, and is left to do so
    }
    if (d->isStoring && adopted.record == index) {
        // a model may tell of a change to the whole record, other values of which wait to be stored
        const QVariant chosen = EditorValue::chosenValue(widget);
        if (chosen.isValid() && chosen != adopted.shown) {
            return;
        }
    }
    adopted.record = index;
    const bool wasLoading = std::exchange(adopted.isLoading, true);
    EditorValue::show(widget, value);
    if (!self || !guarded) {
        return;
    }
    const QVariant shown = EditorValue::chosenValue(widget);
    Private::Editor &loaded = d->editors[widget];
    loaded.shown = shown;
    loaded.isChanged = false;
    loaded.isLoading = wasLoading;
}

void OlvValueDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    auto *widget = qobject_cast<OlvWidget *>(editor);
    if (!widget) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    const QVariant value = EditorValue::chosenValue(widget);
    Private::Editor &adopted = d->adopt(widget);
    const Private::Editor before = adopted;
    const bool isShown = before.record == index;
    const bool isToBeWritten = isShown ? value != before.shown : before.isChanged;
    if (!value.isValid() || !isToBeWritten) {
        return;
    }
    const QVariant stored = index.data(Qt::EditRole);
    if (EditorValue::isOtherSpelling(widget, value, stored)) {
        adopted.shown = value;
        adopted.record = index;
        adopted.isChanged = false;
        return;
    }
    const QPointer<QObject> self(const_cast<OlvValueDelegate *>(this));
    const QPointer<OlvWidget> guarded(widget);
    // noted first: the model tells of the change, which shows the record again
    adopted.shown = value;
    adopted.record = index;
    adopted.isChanged = false;
    const bool wasStoring = std::exchange(d->isStoring, true);
    const bool isStored =
        model->setData(index, EditorValue::converted(value, stored), Qt::EditRole);
    if (!self) {
        return;
    }
    d->isStoring = wasStoring;
    if (!isStored && guarded) {
        Private::Editor &refused = d->editors[widget]; // the next time tries again
        refused.shown = before.shown;
        refused.record = before.record;
        refused.isChanged = before.isChanged;
    }
}

bool OlvValueDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == FilterProbe::probeType()) {
        auto *probe = static_cast<FilterProbe *>(event);
        probe->isHeard = probe->isHeard || probe->filter == this;
        return probe->isHeard;
    }
    const QPointer<QObject> receiver(watched);
    OlvWidget *editor = d->editorOf(watched);
    const bool isChange = event->type() == QEvent::DynamicPropertyChange
        && isOfValue(static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName());
    if (!editor) {
        if (auto *unserved = qobject_cast<OlvWidget *>(watched)) {
            Private::Editor &known = d->know(unserved);
            known.isChanged = known.isChanged || isChange;
        }
        // the receiver was deleted; consume the event
        return QStyledItemDelegate::eventFilter(watched, event) || !receiver;
    }
    const bool isKnob = watched != editor && dynamic_cast<SliderRound *>(watched);
    const QPointer<QObject> self(this);
    const QPointer<OlvWidget> guarded(editor);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        d->editors[editor].isDragged = isKnob;
        break;
    case QEvent::MouseButtonRelease:
        if (isKnob) {
            d->editors[editor].isDragged = false;
            d->commit(editor);
        }
        break;
    case QEvent::Hide: // a hidden knob gets no release
        if (isKnob && std::exchange(d->editors[editor].isDragged, false)) {
            d->commit(editor);
        }
        break;
    case QEvent::DynamicPropertyChange:
        if (watched == editor && isChange) {
            d->editors[editor].isChanged = true;
            d->commit(editor);
        }
        break;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        if (qobject_cast<OlvShortcutEdit *>(editor)) {
            return false; // every key may be the user's new shortcut
        }
        break;
    default:
        break;
    }
    if (!self || !guarded || isKnob) {
        return !receiver;
    }
    const bool isOfPart = watched != editor;
    if (isOfPart && (!isHandledByQt(event->type()) || !isFilterOf(this, editor))) {
        return !receiver;
    }
    if (!self || !guarded) {
        return !receiver;
    }
    if (isOfPart && isEnter(event)) {
        // Qt gets it from the editor, to which it comes next: closing an editor twice is a warning
        return !EditorValue::fixUp(editor) || !receiver;
    }
    return d->handleAsQt(editor, event) || !receiver;
}
