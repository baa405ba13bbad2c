// SPDX-License-Identifier: MIT
#include "designerprobe.h"

#include "designerhand.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListView>
#include <QPixmap>
#include <QScreen>
#include <QTreeWidget>
#include <QUndoStack>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>

namespace {

constexpr int callInterval = 100; // milliseconds
constexpr int settlingTime = 700; // milliseconds, in which what was asked for gets drawn

QString reportPath(const char *name)
{
    return qEnvironmentVariable("OLV_DESIGNER_REPORT") + QLatin1Char('/') + QLatin1String(name);
}

QString ourGroup()
{
    return QStringLiteral("OlvWidgets");
}

QByteArray read(const char *name)
{
    QFile file(reportPath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const char *name, const QByteArray &content)
{
    QFile file(reportPath(name));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
}

} // namespace

void DesignerProbe::initialize(QDesignerFormEditorInterface *core)
{
    m_core = core;
    connect(&m_timer, &QTimer::timeout, this, &DesignerProbe::look);
    m_timer.start(callInterval);
}

void DesignerProbe::look()
{
    QDesignerFormWindowInterface *form =
        m_core->formWindowManager() ? m_core->formWindowManager()->activeFormWindow() : nullptr;
    if (!form || !form->mainContainer() || !form->mainContainer()->isVisible()
        || !m_core->widgetBox() || !m_core->widgetBox()->isVisible()) {
        return;
    }
    m_timer.stop();
    DesignerHand::tidyUp(m_core, ourGroup());
    form->clearSelection();
    form->selectWidget(DesignerHand::find(m_core, QStringLiteral("olvButton")));
    QTimer::singleShot(settlingTime, this, &DesignerProbe::takePicture);
}

void DesignerProbe::takePicture()
{
    // the dynamic properties come last
    const QList<QTreeWidget *> trees = m_core->propertyEditor()->findChildren<QTreeWidget *>();
    for (QTreeWidget *tree : trees) {
        tree->scrollToBottom();
    }
    QTimer::singleShot(settlingTime, this, [this] {
        QGuiApplication::primaryScreen()->grabWindow(0).save(reportPath("designer.png"));
        edit();
    });
}

/** Edits the form in the ways whose outcome is reported. */
void DesignerProbe::edit()
{
    m_edited = DesignerHand::find(m_core, QStringLiteral("olvButton"));
    if (m_edited) {
        m_edited->installEventFilter(this);
    }
    DesignerHand::edit(m_core, QStringLiteral("olvButton"), QStringLiteral("color"),
                       QStringLiteral("warning"));
    DesignerHand::edit(m_core, QStringLiteral("olvLineEdit"), QStringLiteral("Icon"),
                       QStringLiteral("WWWWWW"));
    const QWidget *line = DesignerHand::find(m_core, QStringLiteral("olvLineEdit"));
    m_seen.insert(QStringLiteral("iconWidth"), line ? line->property("IconWidth").toInt() : 0);
    useMenus();
    DesignerHand::edit(m_core, QStringLiteral("viewport"), QStringLiteral("geometry"),
                       QRect(24, 272, 250, 90));
    DesignerHand::paste(m_core, QString::fromUtf8(read("bare.ui")));
    DesignerHand::paste(m_core, groupEntries().value(QStringLiteral("OlvGridLayout")).toString());
    QDesignerFormWindowInterface *form = m_core->formWindowManager()->activeFormWindow();
    form->cursor()->setWidgetProperty(form->mainContainer(), QStringLiteral("geometry"),
                                      QRect(0, 0, 600, 420));
    QTimer::singleShot(settlingTime, this, &DesignerProbe::report);
}

void DesignerProbe::useMenus()
{
    QDesignerFormWindowInterface *form = m_core->formWindowManager()->activeFormWindow();
    const QString tile = QStringLiteral("olvIconButton");
    const QString glyph = QStringLiteral("Change glyph...");
    const QString color = QStringLiteral("Change colour...");
    const auto glyphOfTile = [&] {
        return int(DesignerHand::find(m_core, tile)->property("icon").toChar().unicode());
    };
    QJsonObject seen;
    form->setDirty(false);
    // neither a character nor a code at first
    seen.insert(QStringLiteral("dialogs"),
                DesignerHand::choose(m_core, tile, glyph,
                                     { QStringLiteral("star"), QStringLiteral("f005") }));
    seen.insert(QStringLiteral("isDirty"), form->isDirty());
    form->commandHistory()->undo();
    seen.insert(QStringLiteral("undone"), glyphOfTile());
    form->commandHistory()->redo();
    seen.insert(QStringLiteral("redone"), glyphOfTile());
    const int commands = form->commandHistory()->count();
    DesignerHand::choose(m_core, tile, glyph, {});
    DesignerHand::choose(m_core, tile, color, {});
    seen.insert(QStringLiteral("cancelled"), form->commandHistory()->count() - commands);

    DesignerHand::choose(m_core, tile, color, { QStringLiteral("#80112233") });
    DesignerHand::choose(m_core, QStringLiteral("olvFlexWidget"), color,
                         { QStringLiteral("#ff445566") });
    DesignerHand::choose(m_core, QStringLiteral("olvSimpleIconButton"), glyph,
                         { QStringLiteral("U+F006") });
    DesignerHand::choose(m_core, QStringLiteral("olvLineEdit"), glyph, { QStringLiteral("@") });
    m_seen.insert(QStringLiteral("menus"), seen);
}

bool DesignerProbe::eventFilter(QObject *watched, QEvent *event)
{
    m_paintings += event->type() == QEvent::Paint ? 1 : 0;
    return QObject::eventFilter(watched, event);
}

void DesignerProbe::report()
{
    QDesignerFormWindowInterface *form = m_core->formWindowManager()->activeFormWindow();
    write("form.ui", form->contents().toUtf8());
    m_seen.insert(QStringLiteral("box"), widgetBox());
    m_seen.insert(QStringLiteral("drops"), groupEntries());
    m_seen.insert(QStringLiteral("tips"), groupTips());
    m_seen.insert(QStringLiteral("form"), formProperties());
    m_seen.insert(QStringLiteral("entries"), menuEntries());
    if (m_edited) {
        m_seen.insert(QStringLiteral("editedColor"), m_edited->property("color").toString());
        m_seen.insert(QStringLiteral("paintings"), m_paintings);
    }
    write("report.json", QJsonDocument(m_seen).toJson());
    form->setDirty(false);
    QApplication::closeAllWindows();
}

/** The entries of each group, by the group's name. */
QJsonObject DesignerProbe::widgetBox() const
{
    QJsonObject groups;
    const QDesignerWidgetBoxInterface *box = m_core->widgetBox();
    for (int i = 0; i < box->categoryCount(); ++i) {
        const QDesignerWidgetBoxInterface::Category category = box->category(i);
        QJsonArray names;
        for (int j = 0; j < category.widgetCount(); ++j) {
            names.append(category.widget(j).name());
        }
        groups.insert(category.name(), names);
    }
    return groups;
}

/** The properties that the property editor shows as dynamic, by the widget's class. */
QJsonObject DesignerProbe::formProperties() const
{
    QJsonObject classes;
    const QDesignerFormWindowInterface *form = m_core->formWindowManager()->activeFormWindow();
    const QList<QWidget *> widgets = form->mainContainer()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const auto *sheet =
            qt_extension<QDesignerPropertySheetExtension *>(m_core->extensionManager(), widget);
        const QString name = QString::fromLatin1(widget->metaObject()->className());
        if (!form->isManaged(widget) || !sheet || !name.startsWith(QLatin1String("Olv"))) {
            continue;
        }
        QJsonArray properties;
        for (int i = 0; i < sheet->count(); ++i) {
            if (sheet->isVisible(i)
                && sheet->propertyGroup(i) == QLatin1String("Dynamic Properties")) {
                properties.append(sheet->propertyName(i));
            }
        }
        classes.insert(name, properties);
    }
    return classes;
}

/** What each entry of the plugin's group drops into a form, by its name. */
QJsonObject DesignerProbe::groupEntries() const
{
    QJsonObject entries;
    const QDesignerWidgetBoxInterface *box = m_core->widgetBox();
    for (int i = 0; i < box->categoryCount(); ++i) {
        const QDesignerWidgetBoxInterface::Category category = box->category(i);
        for (int j = 0; category.name() == ourGroup() && j < category.widgetCount(); ++j) {
            entries.insert(category.widget(j).name(), category.widget(j).domXml());
        }
    }
    return entries;
}

/** What the widget box shows as the tool tip of each entry, by its name. */
QJsonObject DesignerProbe::groupTips() const
{
    QJsonObject tips;
    const QList<QListView *> lists = m_core->widgetBox()->findChildren<QListView *>();
    for (const QListView *list : lists) {
        for (int i = 0; i < list->model()->rowCount(); ++i) {
            const QModelIndex entry = list->model()->index(i, 0);
            tips.insert(entry.data().toString(), entry.data(Qt::ToolTipRole).toString());
        }
    }
    return tips;
}

/** What the plugin adds to the context menus of the widgets that it has dropped, by their names. */
QJsonObject DesignerProbe::menuEntries() const
{
    QJsonObject entries;
    const QWidget *form = m_core->formWindowManager()->activeFormWindow()->mainContainer();
    const QList<QWidget *> widgets = form->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QStringList menu = DesignerHand::menuOf(m_core, widget->objectName());
        if (widget->objectName().startsWith(QLatin1String("olv")) && !menu.isEmpty()) {
            entries.insert(widget->objectName(), QJsonArray::fromStringList(menu));
        }
    }
    return entries;
}
