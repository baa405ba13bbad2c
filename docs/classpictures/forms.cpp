// SPDX-License-Identifier: MIT
#include "picture.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/forms.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

#include <QFormLayout>
#include <QHeaderView>
#include <QItemEditorFactory>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>

namespace {

std::function<void()> fillFormSupport(QWidget *stage)
{
    auto *form = new QWidget(stage);
    auto *rows = new QFormLayout(form);
    auto *name = new OlvLineEdit;
    name->setText(QStringLiteral("Li Wei"));
    auto *volume = new OlvSlider;
    auto *shared = new OlvSwitch;
    rows->addRow(QStringLiteral("&Name:"), name);
    rows->addRow(QStringLiteral("&Volume:"), volume);
    rows->addRow(QStringLiteral("&Shared:"), shared);
    rows->addRow(new OlvButton(QStringLiteral("Save")));
    new OlvFormSupport(form);
    form->setGeometry(16, 16, 300, 170);
    return [=] {
        volume->setSliderPosition(60);
        shared->setChecked(true);
    };
}

std::function<void()> fillValueDelegate(QWidget *stage)
{
    static QItemEditorFactory factory;
    factory.registerEditor(QVariant::Bool, new QStandardItemEditorCreator<OlvSwitch>);
    factory.registerEditor(QVariant::Int, new QStandardItemEditorCreator<OlvSlider>);
    factory.registerEditor(QVariant::String, new QStandardItemEditorCreator<OlvLineEdit>);
    auto *delegate = new OlvValueDelegate(stage);
    delegate->setItemEditorFactory(&factory);

    auto *model = new QStandardItemModel(3, 3, stage);
    model->setHorizontalHeaderLabels(
        { QStringLiteral("Name"), QStringLiteral("Notify"), QStringLiteral("Volume") });
    const QVariantList names{ QStringLiteral("Ann"), QStringLiteral("Bob"), QStringLiteral("Eve") };
    auto *view = new QTableView(stage);
    view->setModel(model);
    view->setItemDelegate(delegate);
    for (int row = 0; row < names.size(); ++row) {
        const QVariantList cells{ names.at(row), row != 1, 30 + 30 * row };
        for (int column = 0; column < cells.size(); ++column) {
            model->setData(model->index(row, column), cells.at(column), Qt::EditRole);
            view->openPersistentEditor(model->index(row, column));
        }
        view->setRowHeight(row, 30);
    }
    view->setColumnWidth(0, 120);
    view->setColumnWidth(1, 60);
    view->setColumnWidth(2, 160);
    view->verticalHeader()->hide();
    view->setFrameShape(QFrame::NoFrame);
    view->setGeometry(16, 16, 342, 118);
    return {};
}

} // namespace

QVector<Picture> formPictures()
{
    return {
        { QStringLiteral("OlvFormSupport"), { 332, 202 }, fillFormSupport },
        { QStringLiteral("OlvValueDelegate"), { 374, 150 }, fillValueDelegate },
    };
}
