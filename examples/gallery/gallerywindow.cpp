// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include "page.h"
#include "pages.h"

#include <QApplication>
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

QPalette colorsOf(GalleryWindow::Theme theme)
{
    struct
    {
        QPalette::ColorRole role;
        QColor light;
        QColor dark;
    } const colors[] = {
        { QPalette::Window, QColor(255, 255, 255), QColor(32, 33, 36) },
        { QPalette::WindowText, QColor(48, 49, 51), QColor(232, 234, 237) },
        { QPalette::Base, QColor(248, 249, 251), QColor(41, 42, 46) },
        { QPalette::Mid, QColor(96, 98, 102), QColor(174, 178, 184) },
        { QPalette::Midlight, QColor(236, 240, 246), QColor(51, 53, 58) },
        { QPalette::Light, QColor(236, 245, 255), QColor(38, 54, 74) },
    };
    QPalette palette;
    for (const auto &color : colors) {
        palette.setColor(color.role, theme == GalleryWindow::Dark ? color.dark : color.light);
    }
    return palette;
}

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(settlingTime, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent, Theme theme)
    : QWidget(parent)
    , m_names(new QListWidget)
    , m_pages(new QStackedWidget)
{
    setWindowTitle(QStringLiteral("OlvWidgets gallery"));
    QApplication::setPalette(colorsOf(theme)); // style sheets take their colours from there
    setAutoFillBackground(true);               // within another window too
    resize(windowSize);

    m_names->setFixedWidth(listWidth);
    m_names->setFrameShape(QFrame::NoFrame);
    m_names->setStyleSheet(QStringLiteral(
        "QListWidget { background: palette(base); outline: none; padding-top: 12px; }"
        "QListWidget::item { border: none; padding: 9px 16px; color: palette(mid); }"
        "QListWidget::item:hover { background: palette(midlight); }"
        "QListWidget::item:selected { background: palette(light); color: rgb(64,158,255); }"));

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

bool GalleryWindow::writePictures(const QString &directory)
{
    if (!QDir().mkpath(directory)) {
        return false;
    }
    const QStringList names = pageNames();
    for (const QString &name : names) {
        showPage(name);
        settle();
        const QString file = name.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
        if (!grab().save(QDir(directory).filePath(file + QLatin1String(".png")))) {
            return false;
        }
    }
    return true;
}
