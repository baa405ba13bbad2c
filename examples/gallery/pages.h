// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

class Page;
class QWidget;

/** A page of the gallery: the name in the list, and what makes it. */
struct PageEntry
{
    QString name;
    Page *(*create)(QWidget *parent);
};

/** All pages, in the order of the list. */
QVector<PageEntry> galleryPages();

Page *createOverviewPage(QWidget *parent);
Page *createStartUpPage(QWidget *parent);
Page *createButtonsPage(QWidget *parent);
Page *createIconButtonsPage(QWidget *parent);
Page *createLineEditsPage(QWidget *parent);
Page *createShortcutsPage(QWidget *parent);
Page *createTextFittingPage(QWidget *parent);
Page *createSwitchesPage(QWidget *parent);
Page *createSlidersPage(QWidget *parent);
Page *createControlBarPage(QWidget *parent);
Page *createFlowGridPage(QWidget *parent);
Page *createFlexPanelPage(QWidget *parent);
Page *createFormsPage(QWidget *parent);
