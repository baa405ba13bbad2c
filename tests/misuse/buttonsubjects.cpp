// SPDX-License-Identifier: MIT
#include "subjects.h"

#include "pointer.h"

#include <OlvButton>
#include <OlvIconButton>
#include <OlvSimpleIconButton>

#include <QTimer>

namespace {

using namespace DeletionTable;

Subject textButton(bool isCheckable)
{
    const auto make = [=](QWidget *parent) -> QWidget * {
        auto *button = new OlvButton(QStringLiteral("text"), parent);
        button->setCheckable(isCheckable);
        return button;
    };
    return { isCheckable ? QStringLiteral("OlvButton, checkable") : QStringLiteral("OlvButton"),
             make,
             {
                 call<OlvButton>("setOlvStyle",
                                 [](OlvButton *button) {
                                     button->setOlvStyle(QStringLiteral("success"),
                                                         QStringLiteral("plain"));
                                 }),
                 call<OlvButton>("setText",
                                 [](OlvButton *button) { button->setText(QStringLiteral("b")); }),
                 call<OlvButton>("setChecked", [](OlvButton *button) { button->setChecked(true); }),
                 call<OlvButton>(
                     "setCheckable",
                     [](OlvButton *button) { button->setCheckable(!button->isCheckable()); }),
                 call<OlvButton>("setValue", [](OlvButton *button) { button->setValue(5); }),
                 call<OlvButton>("click", [](OlvButton *button) { button->click(true); }),
                 call<OlvButton>("openInputMethod",
                                 [](OlvButton *button) { button->openInputMethod(); }),
             } };
}

Subject tile(bool isCheckable)
{
    const auto make = [=](QWidget *parent) -> QWidget * {
        auto *tile = new OlvIconButton(QLatin1Char('a'), QStringLiteral("text"),
                                       QStringLiteral("family"), parent, 80, 80);
        if (isCheckable) {
            tile->setCheckable(true);
        }
        return tile;
    };
    const auto endBurst = [](QWidget *widget) {
        auto *timer = widget->findChild<QTimer *>();
        QTimerEvent event(timer->timerId());
        QCoreApplication::sendEvent(timer, &event);
    };
    return {
        isCheckable ? QStringLiteral("OlvIconButton, checkable") : QStringLiteral("OlvIconButton"),
        make,
        {
            call<OlvIconButton>(
                "setFontFamily",
                [](OlvIconButton *tile) { tile->setFontFamily(QStringLiteral("b")); }),
            call<OlvIconButton>("setIcon",
                                [](OlvIconButton *tile) { tile->setIcon(QLatin1Char('b')); }),
            call<OlvIconButton>("setText",
                                [](OlvIconButton *tile) { tile->setText(QStringLiteral("b")); }),
            call<OlvIconButton>("setColor", [](OlvIconButton *tile) { tile->setColor(Qt::red); }),
            call<OlvIconButton>("setCheckable",
                                [](OlvIconButton *tile) { tile->setCheckable(true); }),
            call<OlvIconButton>("setValue", [](OlvIconButton *tile) { tile->setValue(5); }),
            { QStringLiteral("end of a burst"), endBurst,
              [](QWidget *widget) {
                  Pointer::click(*widget);
              } },
        }
    };
}

Subject glyphButton()
{
    const auto make = [](QWidget *parent) -> QWidget * {
        return new OlvSimpleIconButton(QStringLiteral("a"), QFont(), parent);
    };
    const auto makeToggle = [](QWidget *widget) {
        static_cast<OlvSimpleIconButton *>(widget)->setToggle(QStringLiteral("b"));
    };
    const auto click = [](QWidget *widget) {
        static_cast<OlvSimpleIconButton *>(widget)->click();
    };
    return { QStringLiteral("OlvSimpleIconButton"),
             make,
             {
                 { QStringLiteral("setToggle"), makeToggle },
                 { QStringLiteral("click of a toggle"), click, makeToggle },
                 call<OlvSimpleIconButton>("setTextIcon",
                                           [](OlvSimpleIconButton *button) {
                                               button->setTextIcon(QStringLiteral("b"),
                                                                   QStringLiteral("c"));
                                           }),
             } };
}

} // namespace

QVector<Subject> DeletionTable::buttonSubjects()
{
    return { textButton(false), textButton(true), tile(false), tile(true), glyphButton() };
}
