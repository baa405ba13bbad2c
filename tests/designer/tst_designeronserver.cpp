// SPDX-License-Identifier: MIT
#include "forms.h"
#include "plugin.h"
#include "testprogram.h"

#include <OlvGridLayout>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QUiLoader>

#include <memory>

/** Qt Designer itself, started on the display with the plugin and a form of every widget. */
class TestDesignerOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void startsWithoutAWarning();
    void showsTheGroupInItsWidgetBox();
    void showsTheOfferedDynamicPropertiesAndNoOthers();
    void showsTheToolTipOfEachWidgetInItsWidgetBox();
    void redrawsAWidgetWhosePropertyIsEdited();
    void arrangesAWidgetWhosePropertyIsEdited();
    void savesWhatIsEdited();
    void offersMenusForGlyphsAndColours();
    void savesTheGlyphsAndColoursThatMenusAskFor();
    void makesEachChoiceACommandThatCanBeUndone();
    void savesFormsThatUicCompilesWithAHeaderOfEachClass();
    void keepsThePlacesOfTheWidgets();
    void keepsTheGridAsLargeAsItsViewport();
    void keepsTheSizeOfAGridWithoutAViewport();
    void dropsTheGridInsideAViewport();

private:
    QByteArray read(const QString &name) const;
    QVariant saved(const char *widget, const char *property) const;

    QTemporaryDir m_folder;
    QJsonObject m_seen;
    QByteArray m_errors;
    std::unique_ptr<QWidget> m_saved;
};

namespace {

struct Place
{
    const char *className;
    QRect geometry;
};

/** Apart from each other, so that a picture of the form shows each. */
const QVector<Place> &places()
{
    static const QVector<Place> all{
        { "OlvControlBar", { 24, 12, 512, 25 } },
        { "OlvButton", { 24, 56, 90, 32 } },
        { "OlvSwitch", { 150, 60, 50, 24 } },
        { "OlvSimpleIconButton", { 234, 57, 30, 30 } },
        { "OlvSlider", { 296, 57, 240, 30 } },
        { "OlvLineEdit", { 24, 112, 240, 32 } },
        { "OlvShortcutEdit", { 296, 112, 240, 32 } },
        { "OlvIconButton", { 24, 168, 80, 80 } },
        { "OlvDragWidget", { 128, 168, 80, 80 } },
        { "OlvFlexWidget", { 296, 168, 240, 204 } },
        { "OlvGridLayout", { 24, 272, 240, 100 } },
    };
    return all;
}

QString geometryElement(const QRect &geometry)
{
    return QStringLiteral("<property name=\"geometry\"><rect><x>%1</x><y>%2</y><width>%3</width>"
                          "<height>%4</height></rect></property>")
        .arg(geometry.x())
        .arg(geometry.y())
        .arg(geometry.width())
        .arg(geometry.height());
}

/** The widget element of what the plugin drops, at @p geometry. */
QString placed(const QString &className, const QRect &geometry)
{
    static const QRegularExpression place(
        QStringLiteral("<property name=\"geometry\">.*?</property>"));
    return elementOf(pluginWidget(className)->domXml()).replace(place, geometryElement(geometry));
}

/** A form into which each widget has been dropped once, the grid inside its viewport. */
QByteArray formOfEveryWidget()
{
    QString widgets;
    for (const Place &place : places()) {
        const QString className = QString::fromLatin1(place.className);
        if (className == QLatin1String("OlvGridLayout")) {
            widgets += QStringLiteral("<widget class=\"QWidget\" name=\"viewport\">%1%2</widget>")
                           .arg(geometryElement(place.geometry),
                                placed(className, QRect(QPoint(0, 0), place.geometry.size())));
        } else {
            widgets += placed(className, place.geometry);
        }
    }
    return QStringLiteral("<ui version=\"4.0\"><class>Settings</class>"
                          "<widget class=\"QWidget\" name=\"Settings\">%1"
                          "<property name=\"windowTitle\"><string>Settings</string></property>"
                          "%2</widget></ui>")
        .arg(geometryElement(QRect(0, 0, 560, 396)), widgets)
        .toUtf8();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

void TestDesignerOnServer::initTestCase()
{
    QVERIFY(m_folder.isValid());
    const QString form = m_folder.filePath(QStringLiteral("settings.ui"));
    write(form, formOfEveryWidget());
    write(m_folder.filePath(QStringLiteral("bare.ui")),
          pluginWidget(QStringLiteral("OlvGridLayout"))->domXml().toUtf8());

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"),
                       QStringLiteral(OLV_PLUGINS ":" OLV_PROBE_PLUGINS));
    environment.insert(QStringLiteral("OLV_DESIGNER_REPORT"), m_folder.path());
    // no settings of the user's, and none left behind
    environment.insert(QStringLiteral("HOME"), m_folder.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.path());
    QProcess designer;
    designer.setProcessEnvironment(environment);
    designer.start(QStringLiteral(OLV_DESIGNER), { form });
    const bool hasFinished = designer.waitForFinished(120000);
    m_errors = designer.readAllStandardError();
    QVERIFY2(hasFinished, m_errors.constData());
    QCOMPARE(designer.exitStatus(), QProcess::NormalExit);
    QCOMPARE(designer.exitCode(), 0);
    m_seen = QJsonDocument::fromJson(read(QStringLiteral("report.json"))).object();
    QVERIFY2(!m_seen.isEmpty(), m_errors.constData());

    m_saved = loadForm(QString::fromUtf8(read(QStringLiteral("form.ui"))), nullptr);
    QVERIFY(m_saved);

    const QString pictures = qEnvironmentVariable("OLV_PICTURES");
    if (!pictures.isEmpty()) {
        const QString picture = QDir(pictures).filePath(QStringLiteral("designer.png"));
        QFile::remove(picture); // which copy() would leave as it is
        QVERIFY(QFile::copy(m_folder.filePath(QStringLiteral("designer.png")), picture));
    }
}

QByteArray TestDesignerOnServer::read(const QString &name) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A property of a widget of the saved form, which QUiLoader has loaded. */
QVariant TestDesignerOnServer::saved(const char *widget, const char *property) const
{
    const auto *found = m_saved->findChild<QWidget *>(QLatin1String(widget));
    return found ? found->property(property) : QVariant();
}

void TestDesignerOnServer::cleanupTestCase()
{
    m_saved.reset();
}

void TestDesignerOnServer::startsWithoutAWarning()
{
    QCOMPARE(QString::fromUtf8(m_errors), QString());
    QImage screen;
    QVERIFY(screen.loadFromData(read(QStringLiteral("designer.png"))));
    QVERIFY(screen.width() >= 800);
}

void TestDesignerOnServer::showsTheGroupInItsWidgetBox()
{
    const QJsonArray group =
        m_seen.value(QLatin1String("box")).toObject().value(QLatin1String("OlvWidgets")).toArray();
    QJsonArray names;
    const QList<QDesignerCustomWidgetInterface *> plugins = pluginWidgets();
    for (QDesignerCustomWidgetInterface *plugin : plugins) {
        names.append(plugin->name());
    }
    QCOMPARE(group, names);
}

void TestDesignerOnServer::showsTheOfferedDynamicPropertiesAndNoOthers()
{
    const QJsonObject classes = m_seen.value(QLatin1String("form")).toObject();
    const QList<QDesignerCustomWidgetInterface *> plugins = pluginWidgets();
    QCOMPARE(classes.size(), plugins.size());
    for (QDesignerCustomWidgetInterface *plugin : plugins) {
        QStringList shown =
            QVariant(classes.value(plugin->name()).toArray().toVariantList()).toStringList();
        QStringList offered = dynamicProperties(plugin->domXml());
        shown.sort();
        offered.sort();
        QCOMPARE(shown, offered);
    }
}

void TestDesignerOnServer::showsTheToolTipOfEachWidgetInItsWidgetBox()
{
    const QJsonObject tips = m_seen.value(QLatin1String("tips")).toObject();
    const QList<QDesignerCustomWidgetInterface *> plugins = pluginWidgets();
    for (QDesignerCustomWidgetInterface *plugin : plugins) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        // Qt 6 shows the tip of the outermost widget that is dropped: the grid's viewport has none
        if (plugin->name() == QLatin1String("OlvGridLayout")) {
            continue;
        }
#endif
        QCOMPARE(tips.value(plugin->name()).toString(), plugin->toolTip());
    }
}

void TestDesignerOnServer::redrawsAWidgetWhosePropertyIsEdited()
{
    QCOMPARE(m_seen.value(QLatin1String("editedColor")).toString(), QStringLiteral("warning"));
    QVERIFY(m_seen.value(QLatin1String("paintings")).toInt() > 0);
}

void TestDesignerOnServer::arrangesAWidgetWhosePropertyIsEdited()
{
    // the column of the glyph takes six letters only once it is measured anew
    QVERIFY(m_seen.value(QLatin1String("iconWidth")).toInt() > 40);
}

void TestDesignerOnServer::savesWhatIsEdited()
{
    QCOMPARE(saved("olvButton", "color"), QVariant(QStringLiteral("warning")));
}

void TestDesignerOnServer::offersMenusForGlyphsAndColours()
{
    const auto menu = [](const QStringList &entries) {
        return QJsonArray::fromStringList(entries);
    };
    const QString glyph = QStringLiteral("Change glyph...");
    const QString color = QStringLiteral("Change colour...");
    const QJsonObject entries = m_seen.value(QLatin1String("entries")).toObject();
    const QJsonObject wanted{ { QStringLiteral("olvIconButton"), menu({ glyph, color }) },
                              { QStringLiteral("olvSimpleIconButton"), menu({ glyph }) },
                              { QStringLiteral("olvLineEdit"), menu({ glyph }) },
                              { QStringLiteral("olvFlexWidget"), menu({ color }) } };
    QCOMPARE(entries, wanted);
}

void TestDesignerOnServer::savesTheGlyphsAndColoursThatMenusAskFor()
{
    QCOMPARE(saved("olvIconButton", "icon"), QVariant(QChar(0xf005)));
    QCOMPARE(saved("olvIconButton", "color"), QVariant(0x80112233U));
    QCOMPARE(saved("olvFlexWidget", "headerWayColor"), QVariant(0xff445566U));
    QCOMPARE(saved("olvSimpleIconButton", "text"), QVariant(QString(QChar(0xf006))));
    QCOMPARE(saved("olvLineEdit", "Icon"), QVariant(QStringLiteral("@")));
}

void TestDesignerOnServer::makesEachChoiceACommandThatCanBeUndone()
{
    const QJsonObject menus = m_seen.value(QLatin1String("menus")).toObject();
    // one dialog, and another since the first answer was no glyph
    QCOMPARE(menus.value(QLatin1String("dialogs")).toInt(), 2);
    QCOMPARE(menus.value(QLatin1String("isDirty")).toBool(), true);
    QCOMPARE(menus.value(QLatin1String("undone")).toInt(), 0xf0e0);
    QCOMPARE(menus.value(QLatin1String("redone")).toInt(), 0xf005);
    QCOMPARE(menus.value(QLatin1String("cancelled")).toInt(-1), 0);
}

void TestDesignerOnServer::savesFormsThatUicCompilesWithAHeaderOfEachClass()
{
    QProcess uic;
    uic.start(QStringLiteral(OLV_UIC), { m_folder.filePath(QStringLiteral("form.ui")) });
    QVERIFY(uic.waitForFinished(60000));
    QCOMPARE(uic.exitCode(), 0);
    const QByteArray code = uic.readAllStandardOutput();
    const QList<QDesignerCustomWidgetInterface *> plugins = pluginWidgets();
    for (QDesignerCustomWidgetInterface *plugin : plugins) {
        const QByteArray include = "#include " + plugin->includeFile().toUtf8() + '\n';
        QVERIFY2(code.contains(include), include.constData());
    }
    QVERIFY(code.contains("viewport_2 = new QWidget(Settings)"));
    QVERIFY(code.contains("olvGridLayout_3 = new OlvGridLayout(viewport_2)"));
    QVERIFY(code.contains("olvIconButton->setProperty(\"family\", "
                          "QVariant(QString::fromUtf8(\"FontAwesome\")))"));
    QVERIFY(
        code.contains("olvButton->setProperty(\"content\", QVariant(QCoreApplication::translate("));
    QVERIFY(code.contains("olvIconButton->setProperty(\"icon\", QVariant(QChar(61445)))"));
}

void TestDesignerOnServer::keepsThePlacesOfTheWidgets()
{
    for (const Place &place : places()) {
        const QString className = QString::fromLatin1(place.className);
        const QString name = className.at(0).toLower() + className.mid(1);
        if (className != QLatin1String("OlvGridLayout")) {
            QCOMPARE(saved(qPrintable(name), "geometry").toRect(), place.geometry);
        }
    }
    QCOMPARE(m_saved->size(), QSize(600, 420)); // to which it has been resized
}

void TestDesignerOnServer::keepsTheGridAsLargeAsItsViewport()
{
    QCOMPARE(saved("viewport", "geometry"), QVariant(QRect(24, 272, 250, 90)));
    QCOMPARE(saved("olvGridLayout", "geometry"), QVariant(QRect(0, 0, 250, 90)));
}

void TestDesignerOnServer::keepsTheSizeOfAGridWithoutAViewport()
{
    const QRegularExpression bare(
        QStringLiteral("<widget class=\"OlvGridLayout\" name=\"olvGridLayout_2\">\\s*"
                       "<property name=\"geometry\">\\s*<rect>\\s*<x>\\d*</x>\\s*<y>\\d*</y>\\s*"
                       "<width>240</width>\\s*<height>160</height>"));
    QVERIFY(QString::fromUtf8(read(QStringLiteral("form.ui"))).contains(bare));
}

void TestDesignerOnServer::dropsTheGridInsideAViewport()
{
    const auto *grid = m_saved->findChild<OlvGridLayout *>(QStringLiteral("olvGridLayout_3"));
    QVERIFY(grid);
    QWidget *viewport = grid->parentWidget();
    QCOMPARE(QString::fromLatin1(viewport->metaObject()->className()), QStringLiteral("QWidget"));
    QCOMPARE(viewport->parentWidget(), m_saved.get());
    QCOMPARE(viewport->size(), grid->size());
    QCOMPARE(grid->property("isSubWindow"), QVariant(false));
    m_saved->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_saved.get()));
    viewport->resize(300, 120);
    QTRY_COMPARE(grid->width(), 300);
    QCOMPARE(grid->height(), 120);
}

ADD_TEST(TestDesignerOnServer, QApplication)
#include "tst_designeronserver.moc"
