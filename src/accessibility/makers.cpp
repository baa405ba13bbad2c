// SPDX-License-Identifier: MIT
#include "accessibility/accessiblebutton_p.h"
#include "accessibility/accessibleflexwidget_p.h"
#include "accessibility/accessibleglyphbutton_p.h"
#include "accessibility/accessibleiconbutton_p.h"
#include "accessibility/accessiblelineedit_p.h"
#include "accessibility/accessibleshortcutedit_p.h"
#include "accessibility/accessibleslider_p.h"
#include "accessibility/accessibleswitch_p.h"
#include "frame/controlbarbutton_p.h"
#include "support/accessibility_p.h"

#include <QApplication>
#include <QPointer>
#include <QVector>

namespace {

template <class Interface> AccessibleWidget *make(QWidget *widget)
{
    return new Interface(widget);
}

template <QAccessible::Role role> AccessibleWidget *makePlain(QWidget *widget)
{
    return new AccessibleWidget(widget, role);
}

struct Maker
{
    const char *className;
    AccessibleWidget *(*make)(QWidget *);
};

constexpr Maker makers[] = {
    { "OlvButton", make<AccessibleButton> },
    { "OlvControlBar", makePlain<QAccessible::ToolBar> },
    { "OlvFlexWidget", make<AccessibleFlexWidget> },
    { "OlvIconButton", make<AccessibleIconButton> },
    { "OlvLineEdit", make<AccessibleLineEdit> },
    { "OlvShortcutEdit", make<AccessibleShortcutEdit> },
    { "OlvSimpleIconButton", make<AccessibleGlyphButton> },
    { "OlvSlider", make<AccessibleSlider> },
    { "OlvSwitch", make<AccessibleSwitch> },
};

/** Qt makes interfaces for every widget that is shown, also while accessibility is inactive. */
AccessibleWidget *watched(AccessibleWidget *accessible)
{
    if (QAccessible::isActive()) {
        accessible->setWatching(true);
    }
    return accessible;
}

/** The factory for the library's classes. */
QAccessibleInterface *makeForClass(const QString &className, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget || !className.startsWith(QLatin1String("Olv"))) {
        return nullptr;
    }
    for (const Maker &maker : makers) {
        if (className == QLatin1String(maker.className)) {
            return watched(maker.make(widget));
        }
    }
    return nullptr;
}

/** The factory for the buttons of a control bar, which have the class name of any push button. */
QAccessibleInterface *makeForButtonOfBar(const QString & /*className*/, QObject *object)
{
    auto *button = dynamic_cast<ControlBarButton *>(object);
    return button ? watched(new AccessibleGlyphButton(button)) : nullptr;
}

/** Starts watching the widgets that exist when accessibility becomes active. */
class Activation : public QAccessible::ActivationObserver
{
public:
    void accessibilityActiveChanged(bool active) override
    {
        const QWidgetList all = QApplication::allWidgets();
        QVector<QPointer<QWidget>> widgets; // an update handler may delete any of them
        for (QWidget *widget : all) {
            widgets.append(widget);
        }
        for (const QPointer<QWidget> &widget : qAsConst(widgets)) {
            auto *own = widget
                ? dynamic_cast<AccessibleWidget *>(QAccessible::queryAccessibleInterface(widget))
                : nullptr;
            if (own) {
                own->setWatching(active);
            }
        }
    }
};

struct Installation
{
    Activation activation;

    Installation()
    {
        installWithApplication(); // creates Qt's lists first, so that they are destroyed after this
    }
    ~Installation()
    {
        QAccessible::removeActivationObserver(&activation);
        QAccessible::removeFactory(makeForButtonOfBar);
        QAccessible::removeFactory(makeForClass);
    }
    Q_DISABLE_COPY(Installation)

    static Installation &instance()
    {
        static Installation installation;
        return installation;
    }

    /**
     * Qt asks the factory that was installed last first, so that the application's precede this
     * one. The destructor of the application object uses the list of observers: where that object
     * is a static, the list has to be created within its constructor in order to outlive it.
     */
    void installWithApplication()
    {
        QAccessible::installActivationObserver(&activation);
        QAccessible::installFactory(makeForClass);
    }
    /** Qt forgets both with each application object, and ignores what is installed already. */
    void installWithWidget()
    {
        QAccessible::installActivationObserver(&activation);
        QAccessible::installFactory(makeForButtonOfBar); // after Qt's own, which takes any button
    }
};

void installWithApplication()
{
    Installation::instance().installWithApplication();
}
Q_COREAPP_STARTUP_FUNCTION(installWithApplication)

void installWithWidget()
{
    Installation::instance().installWithWidget();
}

void registerInstaller()
{
    Accessibility::setInstaller(installWithWidget);
}
Q_CONSTRUCTOR_FUNCTION(registerInstaller)

} // namespace

/** Named by programs that link the library statically, so that the linker takes this file. */
extern "C" void olvWidgetsAccessibility();
void olvWidgetsAccessibility() { }
