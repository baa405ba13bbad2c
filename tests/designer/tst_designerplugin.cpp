// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "forms.h"
#include "plugin.h"
#include "testprogram.h"

#include <QBuffer>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QSet>
#include <QTest>
#include <QUiLoader>
#include <QWidget>

#include <memory>

namespace {

/** The classes that a form may have, and which of their dynamic properties it sets. */
const QVector<QPair<QString, QStringList>> &expected()
{
    const auto names = [](const char *text) {
        return QString::fromLatin1(text).split(QLatin1Char(' '));
    };
    static const QVector<QPair<QString, QStringList>> classes{
        { QStringLiteral("OlvButton"), names("content color type isCheckable isChecked value") },
        { QStringLiteral("OlvIconButton"),
          names("icon text family color partSize iconSize textSize isCheckable isChecked value") },
        { QStringLiteral("OlvSimpleIconButton"), {} },
        { QStringLiteral("OlvLineEdit"), names("Icon") },
        { QStringLiteral("OlvShortcutEdit"), {} },
        { QStringLiteral("OlvSwitch"), names("openColor closeColor") },
        { QStringLiteral("OlvSlider"), names("progress") },
        { QStringLiteral("OlvControlBar"), {} },
        { QStringLiteral("OlvDragWidget"), {} },
        { QStringLiteral("OlvGridLayout"), {} },
        { QStringLiteral("OlvFlexWidget"), names("headerWay headerWayColor") },
    };
    return classes;
}

int paintedPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class TestDesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void offersEveryWidgetThatAFormMayHave();
    void describesTheWidget_data();
    void describesTheWidget();
    void givesEachWidgetAnIconOfItsOwn();
    void isTheOnlyContainer();
    void setsTheDynamicPropertiesThatTheWidgetReads_data();
    void setsTheDynamicPropertiesThatTheWidgetReads();
    void makesTheWidgetWithASensibleSize_data();
    void makesTheWidgetWithASensibleSize();

private:
    void addClasses();
};

void TestDesignerPlugin::cleanup()
{
    runDeferred();
}

void TestDesignerPlugin::addClasses()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("properties");
    for (const auto &entry : expected()) {
        QTest::newRow(qPrintable(entry.first)) << entry.first << entry.second;
    }
}

void TestDesignerPlugin::offersEveryWidgetThatAFormMayHave()
{
    QStringList names;
    const QList<QDesignerCustomWidgetInterface *> widgets = pluginWidgets();
    for (QDesignerCustomWidgetInterface *widget : widgets) {
        names.append(widget->name());
    }
    QStringList wanted;
    for (const auto &entry : expected()) {
        wanted.append(entry.first);
    }
    QCOMPARE(names, wanted);

    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(OLV_PLUGINS "/designer"));
    const QStringList available = loader.availableWidgets();
    for (const QString &name : wanted) {
        QVERIFY2(available.contains(name), qPrintable(name));
    }
}

void TestDesignerPlugin::describesTheWidget_data()
{
    addClasses();
}

void TestDesignerPlugin::describesTheWidget()
{
    QFETCH(QString, name);
    const auto *widget = pluginWidget(name);
    QVERIFY(widget);
    QCOMPARE(widget->group(), QStringLiteral("OlvWidgets"));
    QVERIFY(widget->toolTip().size() > 10);
    QVERIFY(widget->whatsThis().size() > widget->toolTip().size());
    QCOMPARE(widget->includeFile(), QStringLiteral("<%1>").arg(name));
    QVERIFY(QFile::exists(QStringLiteral(OLV_HEADERS "/") + name));
}

void TestDesignerPlugin::givesEachWidgetAnIconOfItsOwn()
{
    QSet<QByteArray> pictures;
    const QList<QDesignerCustomWidgetInterface *> widgets = pluginWidgets();
    for (QDesignerCustomWidgetInterface *widget : widgets) {
        const QImage image = widget->icon().pixmap(48, 48).toImage();
        QCOMPARE(image.size(), QSize(48, 48));
        QVERIFY2(paintedPixels(image) > 60, qPrintable(widget->name()));
        QByteArray bytes;
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::WriteOnly));
        QVERIFY(image.save(&buffer, "PNG"));
        pictures.insert(bytes);
    }
    QCOMPARE(pictures.size(), widgets.size());
}

void TestDesignerPlugin::isTheOnlyContainer()
{
    const QList<QDesignerCustomWidgetInterface *> widgets = pluginWidgets();
    for (QDesignerCustomWidgetInterface *widget : widgets) {
        QCOMPARE(widget->isContainer(), widget->name() == QLatin1String("OlvFlexWidget"));
    }
}

void TestDesignerPlugin::setsTheDynamicPropertiesThatTheWidgetReads_data()
{
    addClasses();
}

void TestDesignerPlugin::setsTheDynamicPropertiesThatTheWidgetReads()
{
    QFETCH(QString, name);
    QFETCH(QStringList, properties);
    QCOMPARE(dynamicProperties(pluginWidget(name)->domXml()), properties);
}

void TestDesignerPlugin::makesTheWidgetWithASensibleSize_data()
{
    addClasses();
}

void TestDesignerPlugin::makesTheWidgetWithASensibleSize()
{
    QFETCH(QString, name);
    QFETCH(QStringList, properties);
    QWidget parent; // the grid would resize its window
    QWidget viewport(&parent);
    const std::unique_ptr<QWidget> widget = loadForm(pluginWidget(name)->domXml(), &viewport);
    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
    QVERIFY(widget->objectName().startsWith(QLatin1String("olv")));
    QVERIFY(widget->width() >= 24 && widget->width() <= 240);
    QVERIFY(widget->height() >= 20 && widget->height() <= 180);
    for (const QString &property : properties) {
        QVERIFY2(widget->property(qPrintable(property)).isValid(), qPrintable(property));
    }
}

ADD_TEST(TestDesignerPlugin, QApplication)
#include "tst_designerplugin.moc"
