// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

class QListWidget;
class QStackedWidget;

/** The gallery's window: the list of pages at the left, the chosen page at the right. */
class GalleryWindow : public QWidget
{
public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    QStringList pageNames() const;
    /** Shows the page of that name, ignoring case; false when there is none. */
    bool showPage(const QString &name);
    /**
     * Shows each of @p pages in turn and writes a picture of the window to a PNG file named after
     * the page in @p directory, which is made when it is missing. Returns whether all could be
     * written.
     */
    bool writePictures(const QString &directory, const QStringList &pages);

private:
    QListWidget *m_names;
    QStackedWidget *m_pages;
};
