// SPDX-License-Identifier: MIT
#include "subjects.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>

using namespace DeletionTable;

QVector<Subject> DeletionTable::plainSubjects()
{
    const auto makeGroup = [](QWidget *parent) {
        auto *group = new QWidget(parent);
        new QLineEdit(group);
        new QPushButton(QStringLiteral("text"), group);
        return group;
    };
    const auto takeOne = [](QWidget *group) {
        const QPointer<QWidget> one(group->findChild<QLineEdit *>());
        one->setParent(nullptr);
        delete one;
    };
    const auto makeButton = [](QWidget *parent) -> QWidget * {
        auto *button = new QPushButton(QStringLiteral("text"), parent);
        button->setCheckable(true);
        return button;
    };
    const auto changeFlags = [](QWidget *widget) {
        const QPointer<QWidget> self(widget);
        widget->setWindowFlags(widget->windowFlags() ^ Qt::Tool);
        if (self) {
            widget->show();
        }
    };
    const auto translate = [](QWidget *widget) {
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(widget, &event);
    };
    const auto makeScrolled = [](QWidget *parent) {
        auto *scrolled = new QWidget(parent);
        new QScrollBar(scrolled);
        return scrolled;
    };
    const auto scroll = [](QWidget *widget) {
        widget->findChild<QScrollBar *>()->setValue(3);
    };
    return {
        { QStringLiteral("QWidget"),
          [](QWidget *parent) { return new QWidget(parent); },
          {
              call<QWidget>("move", [](QWidget *widget) { widget->move(7, 9); }),
              call<QWidget>("setGeometry",
                            [](QWidget *widget) { widget->setGeometry(7, 9, 33, 44); }),
              { QStringLiteral("setWindowFlags"),
                changeFlags,
                nullptr,
                false,
                false,
                { QEvent::ZOrderChange, QEvent::CursorChange } },
          } },
        { QStringLiteral("QWidget with others"),
          makeGroup,
          {
              call<QWidget>("deletion of one",
                            [](QWidget *widget) { delete widget->findChild<QLineEdit *>(); }),
              call<QWidget>("a new one", [](QWidget *widget) { new QWidget(widget); }),
              { QStringLiteral("setParent of one"),
                takeOne,
                nullptr,
                false,
                false,
                { QEvent::ParentAboutToChange } },
              { QStringLiteral("another language"), translate, nullptr, true, true },
          } },
        { QStringLiteral("QLineEdit"),
          [](QWidget *parent) -> QWidget * { return new QLineEdit(parent); },
          {} },
        { QStringLiteral("QPushButton"),
          makeButton,
          {
              call<QPushButton>("setText",
                                [](QPushButton *button) { button->setText(QStringLiteral("b")); }),
              call<QPushButton>("setChecked",
                                [](QPushButton *button) { button->setChecked(true); }),
              call<QPushButton>("setCheckable",
                                [](QPushButton *button) { button->setCheckable(false); }),
          } },
        { QStringLiteral("QWidget with a QScrollBar"),
          makeScrolled,
          {
              { QStringLiteral("value of the scroll bar"),
                scroll,
                nullptr,
                false,
                false,
                { QAccessible::ValueChanged } },
          } },
    };
}

const QVector<Subject> &DeletionTable::everySubject()
{
    static const QVector<Subject> all = plainSubjects() + buttonSubjects() + inputSubjects()
        + valueSubjects() + frameSubjects() + containerSubjects() + formSubjects();
    return all;
}
