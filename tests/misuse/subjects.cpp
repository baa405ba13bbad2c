// SPDX-License-Identifier: MIT
#include "subjects.h"

#include <QLineEdit>
#include <QPushButton>

using namespace DeletionTable;

QVector<Subject> DeletionTable::plainSubjects()
{
    const auto makeGroup = [](QWidget *parent) {
        auto *group = new QWidget(parent);
        new QLineEdit(group);
        new QPushButton(QStringLiteral("text"), group);
        return group;
    };
    const auto makeButton = [](QWidget *parent) -> QWidget * {
        auto *button = new QPushButton(QStringLiteral("text"), parent);
        button->setCheckable(true);
        return button;
    };
    return {
        { QStringLiteral("QWidget"), [](QWidget *parent) { return new QWidget(parent); }, {} },
        { QStringLiteral("QWidget with others"), makeGroup, {} },
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
    };
}

const QVector<Subject> &DeletionTable::everySubject()
{
    static const QVector<Subject> all = plainSubjects() + buttonSubjects() + inputSubjects();
    return all;
}
