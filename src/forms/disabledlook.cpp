// SPDX-License-Identifier: MIT
#include "forms/disabledlook_p.h"

#include "forms/formmember_p.h"
#include "painting/colors_p.h"

#include <QGraphicsEffect>
#include <QPainter>

namespace {

/** Lets the ground shine through a widget. */
class Fade : public QGraphicsEffect
{
public:
    explicit Fade(bool isGlyph)
        : m_isGlyph(isGlyph)
    { }

protected:
    void draw(QPainter *painter) override
    {
        QPoint place;
        QPixmap pixels = sourcePixmap(Qt::DeviceCoordinates, &place, NoPad);
        if (m_isGlyph && !pixels.isNull()) {
            // the style sheet of a button of a glyph makes a disabled one darker
            QPainter glyph(&pixels);
            glyph.setCompositionMode(QPainter::CompositionMode_SourceIn);
            glyph.fillRect(QRect(QPoint(), pixels.size()), QColor(Colors::restingGlyph));
        }
        // Qt restores the painter afterwards
        painter->setWorldTransform(QTransform());
        painter->setOpacity(painter->opacity() * DisabledLook::opacity);
        painter->drawPixmap(place, pixels);
    }

private:
    bool m_isGlyph;
};

/** Whether an effect is one that the library has given, and none of the application's. */
bool isFade(const QGraphicsEffect *effect)
{
    return dynamic_cast<const Fade *>(effect);
}

} // namespace

void DisabledLook::fit(const FormMember &member)
{
    QWidget *widget = member.widget;
    if (widget->isEnabled() || !fades(member)) {
        take(member);
    } else if (!widget->graphicsEffect()) {
        const bool isGlyph = member.kind == FormKind::Glyph || member.kind == FormKind::BarButton;
        widget->setGraphicsEffect(new Fade(isGlyph));
    }
}

bool DisabledLook::fades(const FormMember &member)
{
    // containers have members of their own in them, which fade by themselves
    const QGraphicsEffect *effect = member.widget->graphicsEffect();
    return !holdsOthers(member.kind) && (!effect || isFade(effect));
}

void DisabledLook::take(const FormMember &member)
{
    if (isFade(member.widget->graphicsEffect())) {
        member.widget->setGraphicsEffect(nullptr);
    }
}
