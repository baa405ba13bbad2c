// SPDX-License-Identifier: MIT
// What Designer is told about a new widget of a form, and which values it gives it.
#include "deferred.h"
#include "forms.h"
#include "plugin.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QTest>
#include <QWidget>

#include <memory>

namespace {

/** The names of all properties that the form sets, but those that say how large the widget is. */
QStringList valueProperties(const QString &domXml)
{
    QStringList names;
    QXmlStreamReader xml(elementOf(domXml));
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement
            && xml.name() == QLatin1String("property")) {
            names.append(xml.attributes().value(QLatin1String("name")).toString());
        }
    }
    for (const char *size : { "geometry", "sizePolicy", "minimumSize" }) {
        names.removeAll(QLatin1String(size));
    }
    return names;
}

/** A widget as its class makes it, of the size that a form gives it where its values follow that.
 */
std::unique_ptr<QWidget> madeInCode(const QString &className, QWidget *parent)
{
    if (className == QLatin1String("OlvIconButton")) {
        return std::make_unique<OlvIconButton>(QChar(0xf0e0), QStringLiteral("Mail"),
                                               QStringLiteral("FontAwesome"), parent, 80, 80);
    }
    return std::unique_ptr<QWidget>(pluginWidget(className)->createWidget(parent));
}

/** A value that a form sets to another one than the class does. */
struct Exception
{
    const char *className;
    const char *property;
    QVariant value;
    const char *reason;
};

const QVector<Exception> &exceptions()
{
    static const QVector<Exception> all{
        { "OlvButton", "content", QStringLiteral("Button"), "a new one has no caption to edit" },
        { "OlvIconButton", "isCheckable", false, "not set, which reads as false" },
        { "OlvIconButton", "isChecked", false, "not set, which reads as false" },
        { "OlvSimpleIconButton", "text", QString(QChar(0xf005)), "a new one shows nothing" },
        { "OlvSimpleIconButton", "font", QFont(QStringLiteral("FontAwesome"), 14),
          "large enough to be seen in a form" },
        { "OlvFlexWidget", "headerWay", int(OlvFlexWidget::HeaderTop), "a new one has no band" },
        { "OlvFlexWidget", "headerWayColor", 0xff409effU, "a new one has no band" },
    };
    return all;
}

const Exception *exceptionFor(const QString &className, const QString &property)
{
    for (const Exception &exception : exceptions()) {
        if (className == QLatin1String(exception.className)
            && property == QLatin1String(exception.property)) {
            return &exception;
        }
    }
    return nullptr;
}

bool isSame(const QVariant &one, const QVariant &other)
{
    if (one.userType() != other.userType()) {
        return false;
    }
    switch (one.userType()) {
    case QMetaType::Double: // a form has the digits of a real, code its bits
        return qFuzzyCompare(one.toDouble(), other.toDouble());
    case QMetaType::QFont: // a widget's has the rest of the widget's
        return one.toString() == other.toString();
    default:
        return one == other;
    }
}

QString described(const QVariant &value)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(value.typeName()), value.toString());
}

} // namespace

class TestNewWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void haveTheValuesOfWidgetsMadeInCode_data();
    void haveTheValuesOfWidgetsMadeInCode();
    void explainEachDynamicProperty_data();
    void explainEachDynamicProperty();
    void haveStringsOfOneLine_data();
    void haveStringsOfOneLine();

private:
    static void addClasses();
};

void TestNewWidgets::cleanup()
{
    runDeferred();
}

void TestNewWidgets::addClasses()
{
    QTest::addColumn<QString>("name");
    const QList<QDesignerCustomWidgetInterface *> widgets = pluginWidgets();
    for (QDesignerCustomWidgetInterface *widget : widgets) {
        QTest::newRow(qPrintable(widget->name())) << widget->name();
    }
}

void TestNewWidgets::haveTheValuesOfWidgetsMadeInCode_data()
{
    addClasses();
}

void TestNewWidgets::haveTheValuesOfWidgetsMadeInCode()
{
    QFETCH(QString, name);
    const QString domXml = pluginWidget(name)->domXml();
    QWidget window; // the grid would resize its window
    QWidget viewport(&window);
    const std::unique_ptr<QWidget> loaded = loadForm(domXml, &viewport);
    QVERIFY(loaded);
    const std::unique_ptr<QWidget> made = madeInCode(name, &viewport);
    const QStringList properties = valueProperties(domXml);
    for (const QString &property : properties) {
        const QVariant value = loaded->property(qPrintable(property));
        const QVariant wanted = made->property(qPrintable(property));
        const Exception *exception = exceptionFor(name, property);
        QVERIFY2(isSame(value, exception ? exception->value : wanted),
                 qPrintable(QStringLiteral("%1: %2 instead of %3")
                                .arg(property, described(value), described(wanted))));
        QVERIFY2(!exception || !isSame(value, wanted), qPrintable(property));
    }
}

void TestNewWidgets::explainEachDynamicProperty_data()
{
    addClasses();
}

void TestNewWidgets::explainEachDynamicProperty()
{
    QFETCH(QString, name);
    const QString domXml = pluginWidget(name)->domXml();
    QStringList explained;
    QXmlStreamReader xml(domXml);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement
            || xml.name() != QLatin1String("tooltip")) {
            continue;
        }
        explained.append(xml.attributes().value(QLatin1String("name")).toString());
        QVERIFY2(xml.readElementText().size() > 8, qPrintable(explained.last()));
    }
    QCOMPARE(explained, dynamicProperties(domXml));
}

void TestNewWidgets::haveStringsOfOneLine_data()
{
    QTest::addColumn<QStringList>("translated");
    QTest::addColumn<QStringList>("untranslated");
    const auto names = [](std::initializer_list<const char *> list) {
        QStringList strings;
        for (const char *name : list) {
            strings.append(QLatin1String(name));
        }
        return strings;
    };
    QTest::newRow("OlvButton") << names({ "content" }) << names({ "color", "type" });
    QTest::newRow("OlvIconButton") << names({ "text" }) << names({ "family" });
    QTest::newRow("OlvLineEdit") << names({}) << names({ "Icon" });
    QTest::newRow("OlvSwitch") << names({}) << names({ "openColor", "closeColor" });
    for (const char *name :
         { "OlvSimpleIconButton", "OlvShortcutEdit", "OlvSlider", "OlvControlBar", "OlvDragWidget",
           "OlvGridLayout", "OlvFlexWidget" }) {
        QTest::newRow(name) << QStringList() << QStringList();
    }
}

void TestNewWidgets::haveStringsOfOneLine()
{
    QFETCH(QStringList, translated);
    QFETCH(QStringList, untranslated);
    QStringList seen;
    QStringList seenUntranslated;
    QXmlStreamReader xml(pluginWidget(QString::fromLatin1(QTest::currentDataTag()))->domXml());
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement
            || xml.name() != QLatin1String("stringpropertyspecification")) {
            continue;
        }
        const QXmlStreamAttributes attributes = xml.attributes();
        QCOMPARE(attributes.value(QLatin1String("type")), QLatin1String("singleline"));
        const bool isUntranslated =
            attributes.value(QLatin1String("notr")) == QLatin1String("true");
        (isUntranslated ? seenUntranslated : seen)
            .append(attributes.value(QLatin1String("name")).toString());
    }
    QCOMPARE(seen, translated);
    QCOMPARE(seenUntranslated, untranslated);
}

ADD_TEST(TestNewWidgets, QApplication)
#include "tst_newwidgets.moc"
