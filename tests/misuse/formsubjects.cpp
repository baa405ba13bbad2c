// SPDX-License-Identifier: MIT
#include "subjects.h"

#include <OlvWidgets/OlvWidgets>

#include <QKeyEvent>

namespace {

using namespace DeletionTable;

using Make = QWidget *(*)(QWidget *parent);

struct Kind
{
    const char *name;
    Make make;
};

template <typename Widget> QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

const QVector<Kind> &kinds()
{
    static const QVector<Kind> all{
        { "OlvButton", make<OlvButton> },
        { "OlvIconButton", make<OlvIconButton> },
        { "OlvSimpleIconButton", make<OlvSimpleIconButton> },
        { "OlvLineEdit", make<OlvLineEdit> },
        { "OlvShortcutEdit", make<OlvShortcutEdit> },
        { "OlvSwitch", make<OlvSwitch> },
        { "OlvSlider", make<OlvSlider> },
        { "OlvControlBar", make<OlvControlBar> },
        { "OlvGridLayout", make<OlvGridLayout> },
        { "OlvDragWidget", make<OlvDragWidget> },
    };
    return all;
}

void send(QWidget *widget, QEvent::Type type, int key)
{
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void pressSpace(QWidget *widget)
{
    send(widget, QEvent::KeyPress, Qt::Key_Space);
}

Deed pressing(const char *name, int key, std::function<void(QWidget *)> prepare = nullptr)
{
    return { QString::fromLatin1(name),
             [=](QWidget *widget) { send(widget, QEvent::KeyPress, key); }, std::move(prepare),
             true };
}

OlvFormSupport *supportOf(const QWidget *widget)
{
    const auto find = [](const QObjectList &children) -> OlvFormSupport * {
        for (QObject *child : children) {
            if (auto *support = dynamic_cast<OlvFormSupport *>(child)) {
                return support;
            }
        }
        return nullptr;
    };
    OlvFormSupport *own = find(widget->children());
    return own ? own : find(widget->parent()->children());
}

QVector<Deed> deeds()
{
    const auto switchOff = [](QWidget *widget) {
        supportOf(widget)->setFeatures({});
    };
    const auto switchOn = [](QWidget *widget) {
        supportOf(widget)->setFeatures(OlvFormSupport::AllFeatures);
    };
    const auto release = [](QWidget *widget) {
        send(widget, QEvent::KeyRelease, Qt::Key_Space);
    };
    const auto focusByTab = [](QWidget *widget) {
        widget->setFocus(Qt::TabFocusReason);
    };
    return {
        pressing("press Space", Qt::Key_Space),
        pressing("press Enter", Qt::Key_Return),
        pressing("press Right", Qt::Key_Right),
        pressing("press End", Qt::Key_End),
        pressing("press Escape", Qt::Key_Escape, pressSpace),
        { QStringLiteral("release Space"), release, pressSpace, true },
        { QStringLiteral("focus by Tab"), focusByTab },
        { QStringLiteral("disable while pressed"),
          [](QWidget *widget) { widget->setEnabled(false); }, pressSpace, false, true },
        { QStringLiteral("enable"), [](QWidget *widget) { widget->setEnabled(true); },
          [](QWidget *widget) { widget->setEnabled(false); }, false, true },
        { QStringLiteral("switch off"), switchOff },
        { QStringLiteral("switch off while pressed"), switchOff, pressSpace },
        { QStringLiteral("switch on"), switchOn, switchOff },
        { QStringLiteral("delete the support"), [](QWidget *widget) { delete supportOf(widget); },
          pressSpace },
        { QStringLiteral("another support"),
          [](QWidget *widget) { new OlvFormSupport(widget->window()); },
          [](QWidget *widget) {
              delete supportOf(widget);
          } },
    };
}

} // namespace

QVector<Subject> DeletionTable::formSubjects()
{
    QVector<Subject> subjects;
    for (const Kind &kind : kinds()) {
        const QString name = QString::fromLatin1(kind.name);
        subjects.append({ name + QStringLiteral(" in a form"),
                          [=](QWidget *parent) {
                              QWidget *widget = kind.make(parent);
                              new OlvFormSupport(parent);
                              return widget;
                          },
                          deeds() });
        subjects.append({ name + QStringLiteral(" with a support of its own"),
                          [=](QWidget *parent) {
                              QWidget *widget = kind.make(parent);
                              new OlvFormSupport(widget);
                              return widget;
                          },
                          deeds() });
    }
    return subjects;
}
