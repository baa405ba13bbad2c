// SPDX-License-Identifier: MIT
#pragma once

#include <OlvLineEdit>
#include <OlvSlider>
#include <OlvSwitch>
#include <OlvValueDelegate>

#include <QDataWidgetMapper>
#include <QStandardItemModel>

/** Widgets that are mapped after the mapper has moved to the record. */
struct LateForm
{
    QStandardItemModel model{ 1, 3 };
    QWidget window;
    OlvLineEdit line{ &window };
    OlvSwitch toggle{ &window };
    OlvSlider slider{ &window };
    QDataWidgetMapper mapper;

    LateForm()
    {
        model.setData(model.index(0, 0), QStringLiteral("kept"));
        model.setData(model.index(0, 1), true, Qt::EditRole);
        model.setData(model.index(0, 2), 30, Qt::EditRole);
        mapper.setModel(&model);
        mapper.setItemDelegate(new OlvValueDelegate(&mapper));
        mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
        mapper.toFirst();
        mapper.addMapping(&line, 0);
        mapper.addMapping(&toggle, 1);
        mapper.addMapping(&slider, 2);
        window.show();
    }
    QVariant stored(int column) const
    {
        return model.index(0, column).data(Qt::EditRole);
    }
};
