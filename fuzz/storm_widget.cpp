// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/widget.h>

namespace {

/** The smallest value widget that an application might write. */
class OneValue : public OlvWidget
{
public:
    using OlvWidget::OlvWidget;

    void setValue(const QVariant &value) override
    {
        m_value = value;
        Q_EMIT valueChanged(value);
    }
    QVariant getValue() override
    {
        return m_value;
    }

private:
    QVariant m_value;
};

class WidgetFamily : public Family
{
public:
    QWidget *make(World & /*world*/, QWidget *parent) override
    {
        return new OneValue(parent);
    }

    void call(World &world, QWidget *widget) override
    {
        Dice &dice = world.dice();
        auto *one = static_cast<OneValue *>(widget);
        switch (dice.below(4)) {
        case 0:
            one->openInputMethod();
            Storm::check(one->testAttribute(Qt::WA_InputMethodEnabled)
                             && one->focusPolicy() == Qt::StrongFocus,
                         "a widget is open to the input method");
            break;
        case 1:
            one->getValue();
            break;
        case 2:
            Q_EMIT one->inputMethodCommit(dice.text());
            break;
        default:
            one->setValue(dice.variant());
        }
    }

    QVector<QByteArray> properties() const override
    {
        return { "value", "timerId" };
    }

    void setText(QWidget *widget, const QString &text) override
    {
        static_cast<OneValue *>(widget)->setValue(text);
    }
};

} // namespace

int main(int argc, char **argv)
{
    return runWorlds<WidgetFamily>(argc, argv, "widget");
}
