// SPDX-License-Identifier: MIT
#include "viewport.h"

#include "domxml.h"
#include "widgetkind.h"

#include <QtDesigner/QDesignerWidgetBoxInterface>

namespace {

using Box = QDesignerWidgetBoxInterface;

int indexOf(const Box *box, const QString &group)
{
    for (int i = 0; i < box->categoryCount(); ++i) {
        if (box->category(i).name() == group) {
            return i;
        }
    }
    return -1;
}

int indexOf(const Box::Category &category, const QString &className)
{
    for (int i = 0; i < category.widgetCount(); ++i) {
        if (category.widget(i).name() == className) {
            return i;
        }
    }
    return -1;
}

} // namespace

void dropInViewport(QDesignerWidgetBoxInterface *box, const QString &group, const WidgetKind &kind)
{
    const int place = box ? indexOf(box, group) : -1;
    if (place < 0) {
        return;
    }
    const Box::Category category = box->category(place);
    const int first = indexOf(category, kind.className);
    const QString wanted = viewportDomXml(kind);
    if (first < 0 || category.widget(first).domXml() == wanted) {
        return;
    }
    // entries can only be appended, so this one and those after it are removed and added again
    for (int i = category.widgetCount() - 1; i >= first; --i) {
        box->removeWidget(place, i);
    }
    for (int i = first; i < category.widgetCount(); ++i) {
        Box::Widget entry = category.widget(i);
        if (i == first) {
            entry.setDomXml(wanted);
        }
        box->addWidget(place, entry);
    }
}
