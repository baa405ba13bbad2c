// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>
#include <OlvWidgets/frame.h>

#include "frame/controlbarbutton_p.h"
#include "painting/colors_p.h"
#include "support/accessibility_p.h"

#include <QColor>
#include <QHBoxLayout>
#include <QPointer>
#include <QSpacerItem>
#include <QVariant>

#include <array>

namespace {

constexpr int barHeight = 25;
constexpr int buttonSize = 25;
constexpr int glyphSize = 8; // points
constexpr int restoreIcon = 6;
constexpr int firstCustomIcon = 7;

constexpr char indexProperty[] = "index";
constexpr char maximiseProperty[] = "max";
constexpr char restoreProperty[] = "normal";

struct WindowButton
{
    OlvControlBar::WindowState state;
    const char *tip;
};

constexpr std::array<WindowButton, 6> windowButtons{ {
    { OlvControlBar::Float, QT_TRANSLATE_NOOP("OlvControlBar", "悬浮") },
    { OlvControlBar::Bottom, QT_TRANSLATE_NOOP("OlvControlBar", "置底") },
    { OlvControlBar::Top, QT_TRANSLATE_NOOP("OlvControlBar", "置顶") },
    { OlvControlBar::Min, QT_TRANSLATE_NOOP("OlvControlBar", "最小化") },
    { OlvControlBar::Max, QT_TRANSLATE_NOOP("OlvControlBar", "最大化") },
    { OlvControlBar::Close, QT_TRANSLATE_NOOP("OlvControlBar", "关闭") },
} };

/** A style sheet with the colour of glyphs at rest in place of %1, and of others in place of %2. */
QString withColors(const QString &sheet)
{
    return sheet.arg(OlvColorToString(QColor(Colors::restingGlyph)),
                     OlvColorToString(QColor(Colors::emphasized)));
}

// The style sheets are shared by all bars, and never destroyed: a program may make a bar while it
// destroys its statics.

const QString &actionStyleSheet()
{
    static const auto *const sheet = new QString(
        withColors(QStringLiteral("QPushButton{border:none;color:rgb(%1);}"
                                  "QPushButton:hover{color:rgb(%2);background-color:rgb(%1)}")));
    return *sheet;
}

const QString &toggleStyleSheet()
{
    static const auto *const sheet = new QString(
        withColors(QStringLiteral("QPushButton{border:none;color:rgb(%1)}"
                                  "QPushButton:hover{color:rgb(%2);background-color:rgb(%1)}"
                                  "QPushButton:checked{color:rgb(%2)}")));
    return *sheet;
}

/** The state that a button stands for; null when an application wrote an index of no state. */
const OlvControlBar::WindowState *stateOf(const QPushButton *button)
{
    const uint index = button->property(indexProperty).toUInt();
    return index < windowButtons.size() ? &windowButtons[index].state : nullptr;
}

/**
 * Has a click of a button of @p bar lead to @p reaction, unless the destructor of the bar has run
 * and only a QWidget is left of it.
 */
template <typename Reaction>
void onClick(OlvControlBar *bar, const QPushButton *button, Reaction reaction)
{
    QObject::connect(button, &QPushButton::clicked, bar,
                     [self = static_cast<QObject *>(bar), reaction] {
                         if (qobject_cast<OlvControlBar *>(self)) {
                             reaction();
                         }
                     });
}

} // namespace

class OlvControlBar::Private
{
public:
    /** While a button is being destroyed, only its QWidget may be left, which is no button. */
    QPushButton *at(int index) const
    {
        return qobject_cast<QPushButton *>(buttons.value(index));
    }
    int customCount() const
    {
        return int(buttons.size()) - int(windowButtons.size());
    }

    QVector<QPointer<QObject>> buttons; // from the left to the right
};

OlvControlBar::OlvControlBar(const QList<QChar> &icons, QWidget *parent, const QStringList &tips)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    Accessibility::prepare(this);
    setFixedHeight(barHeight);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addSpacerItem(
        new QSpacerItem(buttonSize, buttonSize, QSizePolicy::Expanding, QSizePolicy::Minimum));
    for (int i = 0; i < tips.size(); ++i) {
        addCustomButton(icons, i, tips.at(i));
    }
    for (int i = 0; i < int(windowButtons.size()); ++i) {
        addWindowButton(icons, i);
    }

    // connected last, so that changed() tells of the click before the other button is unchecked
    QPushButton *bottom = button(Bottom);
    QPushButton *top = button(Top);
    const auto exclude = [](QPushButton *clicked, QPushButton *excluded) {
        // a slot may have deleted either, or may run while the destructor of one is at work
        return [one = QPointer<QObject>(clicked), two = QPointer<QObject>(excluded)] {
            const auto *button = qobject_cast<QPushButton *>(one.data());
            auto *other = qobject_cast<QPushButton *>(two.data());
            if (button && other && button->isChecked() && other->isChecked()) {
                other->setChecked(false);
            }
        };
    };
    connect(bottom, &QPushButton::clicked, this, exclude(bottom, top));
    connect(top, &QPushButton::clicked, this, exclude(top, bottom));
}

OlvControlBar::~OlvControlBar() = default;

QPushButton *OlvControlBar::button(WindowState state) const
{
    const int index = state; // an application may have cast any number
    const bool isState = index >= 0 && index < int(windowButtons.size());
    return isState ? d->at(d->customCount() + index) : nullptr;
}

QPushButton *OlvControlBar::customButton(int index) const
{
    return index < 0 || index >= d->customCount() ? nullptr : d->at(index);
}

QList<QChar> OlvControlBar::formIcons()
{
    return { u'\uf08e', u'\uf103', u'\uf102', u'\uf2d1', u'\uf2d0', u'\uf00d', u'\uf2d2' };
}

QPushButton *OlvControlBar::addButton(const QList<QChar> &icons, int icon, int index,
                                      const QString &tip)
{
    auto *button = new ControlBarButton(this);
    button->setText(icon < icons.size() ? QString(icons.at(icon)) : QString());
    button->setFixedSize(buttonSize, buttonSize);
    button->setProperty(indexProperty, index);
    button->setToolTip(tip);
    layout()->addWidget(button);
    button->setFont(QFont(QStringLiteral("FontAwesome"), glyphSize));
    d->buttons.append(button);
    return button;
}

void OlvControlBar::addCustomButton(const QList<QChar> &icons, int index, const QString &tip)
{
    QPushButton *button = addButton(icons, firstCustomIcon + index, index, tip);
    button->setStyleSheet(actionStyleSheet());
    onClick(this, button, [=] { Q_EMIT custom(button->property(indexProperty).toInt()); });
}

void OlvControlBar::addWindowButton(const QList<QChar> &icons, int index)
{
    const WindowButton &kind = windowButtons[size_t(index)];
    auto *button = static_cast<ControlBarButton *>(addButton(icons, index, index, QString()));
    button->setOwnToolTip(kind.tip);
    switch (kind.state) {
    case Float:
    case Bottom:
    case Top:
        button->setCheckable(true);
        button->setStyleSheet(toggleStyleSheet());
        onClick(this, button, [=] { tellToggled(button); });
        break;
    case Max:
        button->setStyleSheet(actionStyleSheet());
        button->setCheckable(true);
        button->setProperty(maximiseProperty, icons.value(index));
        button->setProperty(restoreProperty, icons.value(restoreIcon));
        onClick(this, button, [=] { tellMaximised(button); });
        break;
    case Min:
    case Close:
        button->setStyleSheet(actionStyleSheet());
        onClick(this, button, [=] {
            if (const WindowState *state = stateOf(button)) {
                Q_EMIT changed(*state, true);
            }
        });
        break;
    }
}

void OlvControlBar::tellToggled(QPushButton *button)
{
    if (const WindowState *state = stateOf(button)) {
        Q_EMIT changed(*state, button->isChecked());
    }
}

void OlvControlBar::tellMaximised(QPushButton *button)
{
    const QPointer<QPushButton> guarded(button);
    tellToggled(button);
    if (!guarded) {
        return;
    }
    const bool checked = button->isChecked();
    button->setText(button->property(checked ? restoreProperty : maximiseProperty).toString());
    if (!guarded) { // the new text was told, and a listener may have deleted the button
        return;
    }
    static_cast<ControlBarButton *>(button)->setOwnToolTip(
        checked ? QT_TRANSLATE_NOOP("OlvControlBar", "还原")
                : QT_TRANSLATE_NOOP("OlvControlBar", "最大化"));
}
