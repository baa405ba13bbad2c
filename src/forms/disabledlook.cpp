// SPDX-License-Identifier: MIT
#include "forms/disabledlook_p.h"

#include "forms/formmember_p.h"

#include <QGraphicsEffect>
#include <QPainter>

namespace {

/** What a button of a glyph is drawn in at rest; its style sheet makes a disabled one darker. */
constexpr QRgb restingGlyph = qRgb(198, 198, 198);

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
            QPainter glyph(&pixels);
            glyph.setCompositionMode(QPainter::CompositionMode_SourceIn);
            glyph.fillRect(QRect(QPoint(), pixels.size()), QColor(restingGlyph));
        }
        painter->save();
        painter->setWorldTransform(QTransform());
        painter->setOpacity(painter->opacity() * DisabledLook::opacity);
        painter->drawPixmap(place, pixels);
        painter->restore();
    }

private:
    bool m_isGlyph;
};

} // namespace

void DisabledLook::fit(FormMember &member)
{
    QWidget *widget = member.widget;
    if (widget->isEnabled() || !fades(member)) {
        take(member);
    } else if (!widget->graphicsEffect()) {
        const bool isGlyph = member.kind == FormKind::Glyph || member.kind == FormKind::BarButton;
        auto *fade = new Fade(isGlyph);
        member.fade = fade;
        widget->setGraphicsEffect(fade);
    }
}

bool DisabledLook::fades(const FormMember &member)
{
    // containers have members of their own in them, which fade by themselves
    const QGraphicsEffect *effect = member.widget->graphicsEffect();
    return !holdsOthers(member.kind) && (!effect || effect == member.fade);
}

void DisabledLook::take(FormMember &member)
{
    // another effect in its place has deleted it
    if (member.fade && member.widget->graphicsEffect() == member.fade) {
        member.widget->setGraphicsEffect(nullptr);
    }
}
