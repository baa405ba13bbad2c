// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include "page.h"
#include "pages.h"

#include <QDir>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPixmap>
#include <QStackedWidget>
#include <QTimer>

namespace {

constexpr int listWidth = 170;
constexpr QSize windowSize(1000, 700);
/** How long a page may take to settle before its picture is taken, in milliseconds. */
constexpr int settlingTime = 450;

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(settlingTime, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : QWidget(parent)
    , m_names(new QListWidget)
    , m_pages(new QStackedWidget)
{
    setWindowTitle(QStringLiteral("OlvWidgets gallery"));
    setAutoFillBackground(true); // also as the child of the frameless window
    resize(windowSize);

    m_names->setFixedWidth(listWidth);
    m_names->setFrameShape(QFrame::NoFrame);
    m_names->setStyleSheet(QStringLiteral(
        "QListWidget { background: palette(alternate-base); outline: none; padding-top: 12px; }"
        "QListWidget::item { border: none; padding: 9px 16px; color: palette(window-text); }"
        "QListWidget::item:hover { background: rgba(64,158,255,5%); }"
        "QListWidget::item:selected { background: rgba(64,158,255,12%); color: rgb(64,158,255); "
        "}"));

    const QVector<PageEntry> entries = galleryPages();
    for (const PageEntry &entry : entries) {
        m_names->addItem(entry.name);
        m_pages->addWidget(entry.create(m_pages));
    }

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_names);
    layout->addWidget(m_pages, 1);

    connect(m_names, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    m_names->setCurrentRow(0);
}

QStringList GalleryWindow::pageNames() const
{
    QStringList names;
    for (int row = 0; row < m_names->count(); ++row) {
        names.append(m_names->item(row)->text());
    }
    return names;
}

bool GalleryWindow::showPage(const QString &name)
{
    const QList<QListWidgetItem *> found = m_names->findItems(name, Qt::MatchFixedString);
    if (found.isEmpty()) {
        return false;
    }
    m_names->setCurrentItem(found.first());
    return true;
}

bool GalleryWindow::writePictures(const QString &directory, const QStringList &pages)
{
    if (!QDir().mkpath(directory)) {
        return false;
    }
    for (const QString &name : pages) {
        showPage(name);
        settle();
        const QString file = name.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
        if (!grab().save(QDir(directory).filePath(file + QLatin1String(".png")))) {
            return false;
        }
    }
    return true;
}
