// SPDX-License-Identifier: MIT
#include "forms/formsizes_p.h"

#include <OlvWidgets/forms.h>

#include "buttons/buttonsproperties_p.h"
#include "forms/formmember_p.h"
#include "input/inputproperties_p.h"

#include <QDynamicPropertyChangeEvent>
#include <QLayout>
#include <QSplitter>

#include <algorithm>
#include <array>
#include <utility>

namespace {

void addWidgetsOf(const QLayout *layout, QWidgetList *widgets)
{
    // not up to count(), about which the layout of a QMainWindow prints a warning
    for (int i = 0; QLayoutItem *item = layout->itemAt(i); ++i) {
        if (QWidget *widget = item->widget()) {
            widgets->append(widget);
        } else if (const QLayout *inner = item->layout()) {
            addWidgetsOf(inner, widgets);
        }
    }
}

/** The policy that a widget has before anybody sets one. */
QSizePolicy initialPolicy(FormKind kind)
{
    return kind == FormKind::Glyph
        ? QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed, QSizePolicy::PushButton)
        : QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSizePolicy naturalPolicy(FormKind kind)
{
    switch (kind) {
    case FormKind::Button:
        return QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    case FormKind::Tile:
    case FormKind::Glyph:
    case FormKind::Switch:
        return QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    case FormKind::LineEdit:
    case FormKind::ShortcutEdit:
    case FormKind::Slider:
    case FormKind::Bar:
        return QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    default:
        return initialPolicy(kind);
    }
}

/** What a bar and its buttons need is known to layouts already. */
bool needsMinimum(FormKind kind)
{
    return kind != FormKind::Bar && kind != FormKind::BarButton;
}

/** The new minimum in one direction: the natural one, where there is none or the one given here. */
int fitted(int current, int given, int natural, int maximum)
{
    return current == given ? qMin(natural, maximum) : current;
}

QSize fittedMinimum(const QWidget &widget, QSize given)
{
    const QSize natural = OlvFormSupport::naturalSize(&widget);
    return QSize(
        fitted(widget.minimumWidth(), given.width(), natural.width(), widget.maximumWidth()),
        fitted(widget.minimumHeight(), given.height(), natural.height(), widget.maximumHeight()));
}

} // namespace

bool FormSizes::isLaidOut(const QWidget *widget)
{
    return widget->parentWidget()
        && laidOutIn(widget->parentWidget()).contains(const_cast<QWidget *>(widget));
}

QWidgetList FormSizes::laidOutIn(const QWidget *container)
{
    QWidgetList widgets;
    if (const auto *splitter = qobject_cast<const QSplitter *>(container)) {
        for (int i = 0; i < splitter->count(); ++i) {
            widgets.append(splitter->widget(i));
        }
    } else if (const QLayout *layout = container->layout()) {
        addWidgetsOf(layout, &widgets);
    }
    return widgets;
}

void FormSizes::give(FormMember &member)
{
    const QPointer<QWidget> widget(member.widget);
    const QSize before = widget->minimumSize();
    const QSize after = needsMinimum(member.kind) ? fittedMinimum(*widget, member.minimum) : before;
    const QSizePolicy policy = naturalPolicy(member.kind);
    const bool setsPolicy = !member.hasPolicy && widget->sizePolicy() == initialPolicy(member.kind)
        && widget->sizePolicy() != policy;

    if (after.width() != before.width()) {
        member.minimum.setWidth(after.width());
    }
    if (after.height() != before.height()) {
        member.minimum.setHeight(after.height());
    }
    if (setsPolicy) {
        member.hasPolicy = true;
        widget->setSizePolicy(policy);
    }
    if (widget && after != before) {
        widget->setMinimumSize(after);
    }
}

void FormSizes::take(FormMember &member)
{
    const QPointer<QWidget> widget(member.widget);
    const QSize given = std::exchange(member.minimum, QSize(0, 0));
    const bool hadPolicy = std::exchange(member.hasPolicy, false);
    const FormKind kind = member.kind;
    const QSize before = widget->minimumSize();
    const QSize after(before.width() == given.width() ? 0 : before.width(),
                      before.height() == given.height() ? 0 : before.height());
    if (hadPolicy && widget->sizePolicy() == naturalPolicy(kind)) {
        widget->setSizePolicy(initialPolicy(kind));
    }
    if (widget && after != before) {
        widget->setMinimumSize(after);
    }
}

bool FormSizes::mayChange(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
        return true;
    case QEvent::DynamicPropertyChange: {
        static constexpr std::array<const char *, 4> names{ ButtonsProperties::content,
                                                            ButtonsProperties::partSize,
                                                            InputProperties::icon,
                                                            InputProperties::password };
        const QByteArray name =
            static_cast<const QDynamicPropertyChangeEvent *>(event)->propertyName();
        return std::any_of(names.begin(), names.end(),
                           [&](const char *one) { return name == one; });
    }
    default:
        return false;
    }
}
