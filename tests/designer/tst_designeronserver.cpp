// SPDX-License-Identifier: MIT
#include "plugin.h"

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

/** Qt Designer itself, started on the display with the plugin and a form of every widget. */
class TestDesignerOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startsWithoutAWarning();
    void showsTheGroupInItsWidgetBox();
    void showsTheOfferedDynamicPropertiesAndNoOthers();
    void redrawsAWidgetWhosePropertyIsEdited();
    void savesFormsThatUicCompilesWithAHeaderOfEachClass();
    void keepsTheSizesOfTheWidgets();

private:
    QByteArray read(const QString &name) const;

    QTemporaryDir m_folder;
    QJsonObject m_seen;
    QByteArray m_errors;
};

namespace {

/** A form into which each widget has been dropped once. */
QByteArray formOfEveryWidget()
{
    const QRegularExpression element(QStringLiteral("<widget.*</widget>"));
    QString widgets;
    int row = 0;
    const QList<QDesignerCustomWidgetInterface *> plugins = pluginWidgets();
    for (QDesignerCustomWidgetInterface *plugin : plugins) {
        widgets += element.match(plugin->domXml())
                       .captured()
                       .replace(QLatin1String("<x>0</x><y>0</y>"),
                                QStringLiteral("<x>%1</x><y>%2</y>")
                                    .arg(20 + row % 2 * 260)
                                    .arg(20 + row / 2 * 90));
        ++row;
    }
    return QStringLiteral(
               "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
               "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>540</width>"
               "<height>640</height></rect></property>%1</widget></ui>")
        .arg(widgets)
        .toUtf8();
}

} // namespace

void TestDesignerOnServer::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QFile form(m_folder.filePath(QStringLiteral("opened.ui")));
    QVERIFY(form.open(QIODevice::WriteOnly));
    form.write(formOfEveryWidget());
    form.close();

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"),
                       QStringLiteral(OLV_PLUGINS ":" OLV_PROBE_PLUGINS));
    environment.insert(QStringLiteral("OLV_DESIGNER_REPORT"), m_folder.path());
    // no settings of the user's, and none left behind
    environment.insert(QStringLiteral("HOME"), m_folder.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.path());
    QProcess designer;
    designer.setProcessEnvironment(environment);
    designer.start(QStringLiteral(OLV_DESIGNER), { form.fileName() });
    const bool hasFinished = designer.waitForFinished(120000);
    m_errors = designer.readAllStandardError();
    QVERIFY2(hasFinished, m_errors.constData());
    QCOMPARE(designer.exitStatus(), QProcess::NormalExit);
    QCOMPARE(designer.exitCode(), 0);
    m_seen = QJsonDocument::fromJson(read(QStringLiteral("report.json"))).object();
    QVERIFY2(!m_seen.isEmpty(), m_errors.constData());

    const QString pictures = qEnvironmentVariable("OLV_PICTURES");
    if (!pictures.isEmpty()) {
        QFile::copy(m_folder.filePath(QStringLiteral("designer.png")),
                    QDir(pictures).filePath(QStringLiteral("designer.png")));
    }
}

QByteArray TestDesignerOnServer::read(const QString &name) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    const QJsonArray titles{ QStringLiteral("Button"),
                             QStringLiteral("Icon Button"),
                             QStringLiteral("Simple Icon Button"),
                             QStringLiteral("Line Edit"),
                             QStringLiteral("Shortcut Edit"),
                             QStringLiteral("Switch"),
                             QStringLiteral("Slider"),
                             QStringLiteral("Control Bar"),
                             QStringLiteral("Drag Widget"),
                             QStringLiteral("Flow Grid"),
                             QStringLiteral("Flex Panel") };
    QCOMPARE(group, titles);
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

void TestDesignerOnServer::redrawsAWidgetWhosePropertyIsEdited()
{
    QCOMPARE(m_seen.value(QLatin1String("editedColor")).toString(), QStringLiteral("warning"));
    QVERIFY(m_seen.value(QLatin1String("paintings")).toInt() > 0);
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
    QVERIFY(code.contains("olvIconButton->setProperty(\"family\", "
                          "QVariant(QString::fromUtf8(\"FontAwesome\")))"));
    QVERIFY(
        code.contains("olvButton->setProperty(\"content\", QVariant(QCoreApplication::translate("));
    QVERIFY(code.contains("olvIconButton->setProperty(\"icon\", QVariant(QChar(61664)))"));
}

void TestDesignerOnServer::keepsTheSizesOfTheWidgets()
{
    const QString saved = QString::fromUtf8(read(QStringLiteral("form.ui")))
                              .remove(QRegularExpression(QStringLiteral("\\s")));
    const QStringList sizes{
        QStringLiteral("name=\"olvButton\"><propertyname=\"geometry\"><rect>"
                       "<x>20</x><y>20</y><width>90</width><height>32<"),
        QStringLiteral("name=\"olvGridLayout\"><propertyname=\"geometry\"><rect>"
                       "<x>280</x><y>380</y><width>240</width><height>160<"),
        QStringLiteral("name=\"olvFlexWidget\"><propertyname=\"geometry\"><rect>"
                       "<x>20</x><y>470</y><width>240</width><height>180<")
    };
    for (const QString &size : sizes) {
        QVERIFY2(saved.contains(size), qPrintable(size));
    }
}

QTEST_MAIN(TestDesignerOnServer)
#include "tst_designeronserver.moc"
