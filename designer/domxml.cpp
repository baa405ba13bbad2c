// SPDX-License-Identifier: MIT
#include "domxml.h"

#include "widgetkind.h"

#include <OlvFormSupport>

#include <QFont>
#include <QMetaEnum>
#include <QWidget>
#include <QXmlStreamWriter>

#include <memory>

namespace {

void writeNumber(QXmlStreamWriter &xml, const char *element, int number)
{
    xml.writeTextElement(QLatin1String(element), QString::number(number));
}

void writeSize(QXmlStreamWriter &xml, QSize size)
{
    writeNumber(xml, "width", size.width());
    writeNumber(xml, "height", size.height());
}

void writeString(QXmlStreamWriter &xml, const KindProperty &property)
{
    xml.writeStartElement(QStringLiteral("string"));
    if (!property.isText) {
        xml.writeAttribute(QStringLiteral("notr"), QStringLiteral("true"));
    }
    xml.writeCharacters(property.value.toString());
    xml.writeEndElement();
}

void writeFont(QXmlStreamWriter &xml, const QFont &font)
{
    xml.writeStartElement(QStringLiteral("font"));
    xml.writeTextElement(QStringLiteral("family"), font.family());
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const uint resolved = font.resolveMask();
#else
    const uint resolved = font.resolve();
#endif
    if (resolved & QFont::SizeResolved) {
        writeNumber(xml, "pointsize", font.pointSize());
    }
    xml.writeEndElement();
}

void writeValue(QXmlStreamWriter &xml, const KindProperty &property)
{
    switch (property.value.userType()) {
    case QMetaType::QString:
        writeString(xml, property);
        break;
    case QMetaType::QFont:
        writeFont(xml, property.value.value<QFont>());
        break;
    case QMetaType::QChar:
        xml.writeStartElement(QStringLiteral("char"));
        writeNumber(xml, "unicode", property.value.toChar().unicode());
        xml.writeEndElement();
        break;
    case QMetaType::Bool:
        xml.writeTextElement(QStringLiteral("bool"), property.value.toString());
        break;
    case QMetaType::Int:
        xml.writeTextElement(QStringLiteral("number"), property.value.toString());
        break;
    case QMetaType::UInt:
        xml.writeTextElement(QStringLiteral("UInt"), property.value.toString());
        break;
    case QMetaType::Double:
        xml.writeTextElement(QStringLiteral("double"), property.value.toString());
        break;
    default:
        Q_UNREACHABLE();
    }
}

void startProperty(QXmlStreamWriter &xml, const QString &name)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), name);
}

/** How large a new widget is. */
struct Sizes
{
    QSize initial;
    /** Invalid where a layout needs none. */
    QSize least;
};

Sizes sizesOf(const WidgetKind &kind)
{
    const std::unique_ptr<QWidget> widget = newWidget(kind);
    const QSize natural = OlvFormSupport::naturalSize(widget.get());
    // A layout shrinks a widget that has no size hint to nothing, unless it has a minimum size.
    const bool needsLeast = kind.vertical == QSizePolicy::Fixed && !widget->sizeHint().isValid();
    if (!needsLeast) {
        return { natural, QSize() };
    }
    const bool grows = kind.horizontal == QSizePolicy::Expanding;
    return { grows ? QSize(natural.width() * 3 / 2, natural.height()) : natural, natural };
}

void writeGeometry(QXmlStreamWriter &xml, QSize size)
{
    startProperty(xml, QStringLiteral("geometry"));
    xml.writeStartElement(QStringLiteral("rect"));
    writeNumber(xml, "x", 0);
    writeNumber(xml, "y", 0);
    writeSize(xml, size);
    xml.writeEndElement();
    xml.writeEndElement();
}

void writeSizes(QXmlStreamWriter &xml, const WidgetKind &kind)
{
    const Sizes sizes = sizesOf(kind);
    writeGeometry(xml, sizes.initial);
    const QMetaEnum policies = QMetaEnum::fromType<QSizePolicy::Policy>();
    startProperty(xml, QStringLiteral("sizePolicy"));
    xml.writeStartElement(QStringLiteral("sizepolicy"));
    xml.writeAttribute(QStringLiteral("hsizetype"),
                       QLatin1String(policies.valueToKey(kind.horizontal)));
    xml.writeAttribute(QStringLiteral("vsizetype"),
                       QLatin1String(policies.valueToKey(kind.vertical)));
    writeNumber(xml, "horstretch", 0);
    writeNumber(xml, "verstretch", 0);
    xml.writeEndElement();
    xml.writeEndElement();

    if (sizes.least.isValid()) {
        startProperty(xml, QStringLiteral("minimumSize"));
        xml.writeStartElement(QStringLiteral("size"));
        writeSize(xml, sizes.least);
        xml.writeEndElement();
        xml.writeEndElement();
    }
}

void writeProperty(QXmlStreamWriter &xml, const KindProperty &property)
{
    startProperty(xml, property.name);
    if (property.way == KindProperty::Dynamic) {
        xml.writeAttribute(QStringLiteral("stdset"), QStringLiteral("0"));
    }
    writeValue(xml, property);
    xml.writeEndElement();
}

void writeSpecifications(QXmlStreamWriter &xml, const WidgetKind &kind)
{
    xml.writeStartElement(QStringLiteral("propertyspecifications"));
    for (const KindProperty &property : kind.properties) {
        if (property.way == KindProperty::Declared) {
            continue;
        }
        xml.writeStartElement(QStringLiteral("tooltip"));
        xml.writeAttribute(QStringLiteral("name"), property.name);
        xml.writeCharacters(property.tip);
        xml.writeEndElement();
    }
    for (const KindProperty &property : kind.properties) {
        if (property.way == KindProperty::Declared
            || property.value.userType() != QMetaType::QString) {
            continue;
        }
        xml.writeStartElement(QStringLiteral("stringpropertyspecification"));
        xml.writeAttribute(QStringLiteral("name"), property.name);
        xml.writeAttribute(QStringLiteral("type"), QStringLiteral("singleline"));
        xml.writeAttribute(QStringLiteral("notr"),
                           property.isText ? QStringLiteral("false") : QStringLiteral("true"));
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void writeWidget(QXmlStreamWriter &xml, const WidgetKind &kind)
{
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), kind.className);
    xml.writeAttribute(QStringLiteral("name"),
                       kind.className.at(0).toLower() + kind.className.mid(1));
    writeSizes(xml, kind);
    for (const KindProperty &property : kind.properties) {
        writeProperty(xml, property);
    }
    xml.writeEndElement();
}

void writeViewport(QXmlStreamWriter &xml, const WidgetKind &kind)
{
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), QStringLiteral("QWidget"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("viewport"));
    writeGeometry(xml, sizesOf(kind).initial);
    writeWidget(xml, kind);
    xml.writeEndElement();
}

QString document(const WidgetKind &kind, void (*write)(QXmlStreamWriter &, const WidgetKind &))
{
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
    // no display name: the widget box shows tool tips only for entries named after their class
    write(xml, kind);

    xml.writeStartElement(QStringLiteral("customwidgets"));
    xml.writeStartElement(QStringLiteral("customwidget"));
    xml.writeTextElement(QStringLiteral("class"), kind.className);
    xml.writeTextElement(QStringLiteral("extends"), kind.baseName);
    writeSpecifications(xml, kind);
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
    return text;
}

} // namespace

QString domXml(const WidgetKind &kind)
{
    return document(kind, writeWidget);
}

QString viewportDomXml(const WidgetKind &kind)
{
    return document(kind, writeViewport);
}
