// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "everywidget.h"
#include "mouse.h"
#include "pointer.h"
#include "testprogram.h"
#include "unheard.h"

#include <QAccessible>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <limits>
#include <memory>

namespace {

/** A property of a widget, or of an object in it. */
struct Place
{
    int kind = 0;
    int object = 0; ///< its index among those of the widget
    QByteArray property;
};

/** A widget and what the pointer, time and assistive programs do to it. */
class HostileScene
{
public:
    explicit HostileScene(int kind)
        : m_widget(everyWidget().at(kind).make(&m_window))
    {
        m_window.resize(250, 150);
        m_window.show();
    }

    /** The widget and all that is in it. */
    QObjectList objects() const
    {
        QObjectList all{ m_widget };
        all += m_widget->findChildren<QObject *>();
        return all;
    }
    QImage picture()
    {
        return m_window.grab().toImage();
    }

    /** Has the widget and all that is in it read what they keep in their properties. */
    void use()
    {
        // painted first, since a resize works out some of the properties anew
        QVERIFY(!m_window.grab().isNull());
        m_widget->resize(m_widget->size() + QSize(7, 5));
        QVector<QPointer<QObject>> receivers;
        const QObjectList all = objects();
        for (QObject *object : all) {
            receivers.append(object);
        }
        for (const QPointer<QObject> &receiver : qAsConst(receivers)) {
            if (receiver && receiver->isWidgetType()) {
                point(static_cast<QWidget *>(receiver.data()));
            }
            if (receiver) {
                passTime(receiver);
            }
        }
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(m_widget);
        interface->text(QAccessible::Name);
        interface->text(QAccessible::Value);
        interface->state();
        OlvFormSupport::naturalSize(m_widget);
        QVERIFY(!m_window.grab().isNull());
    }
    /** Whether all is where a widget can be, and as large as one can be. */
    bool isInBounds() const
    {
        constexpr int farthest = 1 << 29; // that of a widget that is moved by the mouse
        const QWidgetList widgets = m_window.findChildren<QWidget *>();
        return std::all_of(widgets.cbegin(), widgets.cend(), [](const QWidget *widget) {
            return qAbs(widget->x()) <= farthest && qAbs(widget->y()) <= farthest
                && widget->width() <= QWIDGETSIZE_MAX && widget->height() <= QWIDGETSIZE_MAX
                && widget->width() >= 0 && widget->height() >= 0;
        });
    }

private:
    static void point(QWidget *widget)
    {
        Pointer::enter(*widget);
        Mouse::press(widget, { 5, 5 });
        Mouse::move(widget, { 9, 8 });
        QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &wheel);
        Mouse::release(widget, { 9, 8 });
        Pointer::leave(*widget);
    }
    /** As much as a slide of a switch takes. */
    static void passTime(QObject *receiver)
    {
        constexpr int steps = 6;
        const auto *timer = qobject_cast<QTimer *>(receiver);
        for (int i = 0; i < steps; ++i) {
            QTimerEvent event(timer ? timer->timerId() : -1);
            QCoreApplication::sendEvent(receiver, &event);
        }
    }

    // what the documented behaviour leads to: a colour string of numbers that are too large, and
    // the identifier of another timer
    Unheard m_unheard{ { QStringLiteral("QColor::setRgb: RGB parameters out of range"),
                         QStringLiteral("QObject::killTimer(): Error: timer id") } };
    QWidget m_window;
    QWidget *m_widget;
};

QVector<QVariant> hostileValues()
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    return {
        QVariant(),
        least,
        least + 1,
        -1,
        0,
        most - 1,
        most,
        std::numeric_limits<uint>::max(),
        std::numeric_limits<qlonglong>::min(),
        std::numeric_limits<qlonglong>::max(),
        std::numeric_limits<qulonglong>::max(),
        std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN(),
        std::numeric_limits<double>::max(),
        -std::numeric_limits<double>::max(),
        std::numeric_limits<double>::denorm_min(),
        QStringLiteral("2147483648"),
        QStringLiteral("999999999999,-1,text"),
        QStringList({ QStringLiteral("text"), QString() }),
        QByteArray("\0\xff", 2),
        QChar(0xffff),
        QPoint(least, most),
        QPoint(most, least),
        QRect(QPoint(least, least), QPoint(most, most)),
        QRect(QPoint(most, most), QPoint(least, least)),
        QRectF(-1e300, -1e300, 2e300, 2e300),
        QColor(Qt::red),
        QFont(),
        QVariantMap({ { QStringLiteral("key"), 1 } }),
        QVariant::fromValue<QObject *>(nullptr),
    };
}

/** Every dynamic property that the widgets, and the objects in them, have once they were used. */
QVector<Place> places()
{
    QVector<Place> all;
    for (int kind = 0; kind < everyWidget().size(); ++kind) {
        HostileScene scene(kind);
        scene.use();
        const QObjectList objects = scene.objects();
        for (int i = 0; i < objects.size(); ++i) {
            const QList<QByteArray> names = objects.at(i)->dynamicPropertyNames();
            for (const QByteArray &name : names) {
                if (!name.startsWith("_q_")) {
                    all.append({ kind, i, name });
                }
            }
        }
    }
    return all;
}

QByteArray nameOf(const Place &place)
{
    return QByteArray(everyWidget().at(place.kind).name) + ", object "
        + QByteArray::number(place.object) + ", " + place.property;
}

} // namespace

Q_DECLARE_METATYPE(Place)

/** Values in the properties that no setter would write. The sanitizers watch the arithmetic. */
class TestHostileValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void areStood_data();
    void areStood();
    void areForgotten_data();
    void areForgotten();
    void hugeTextIsStood_data();
    void hugeTextIsStood();
};

void TestHostileValues::cleanup()
{
    runDeferred();
}

void TestHostileValues::areStood_data()
{
    QTest::addColumn<Place>("place");
    const QVector<Place> all = places();
    for (const Place &place : all) {
        QTest::newRow(nameOf(place).constData()) << place;
    }
}

void TestHostileValues::areStood()
{
    QFETCH(Place, place);
    HostileScene scene(place.kind);
    QObject *object = scene.objects().at(place.object);
    const QVector<QVariant> values = hostileValues();
    for (const QVariant &value : values) {
        object->setProperty(place.property.constData(), value);
        scene.use();
        QVERIFY(scene.isInBounds());
    }
}

void TestHostileValues::areForgotten_data()
{
    areStood_data();
}

void TestHostileValues::areForgotten()
{
    QFETCH(Place, place);
    HostileScene scene(place.kind);
    QObject *object = scene.objects().at(place.object);
    const QVariant usual = object->property(place.property.constData());
    const QImage before = scene.picture();
    const QVector<QVariant> values = hostileValues();
    for (const QVariant &value : values) {
        object->setProperty(place.property.constData(), value);
        QVERIFY(!scene.picture().isNull());
        object->setProperty(place.property.constData(), usual);
        QCOMPARE(scene.picture(), before);
    }
}

void TestHostileValues::hugeTextIsStood_data()
{
    QTest::addColumn<Place>("place");
    const QVector<Place> all = places();
    for (const Place &place : all) {
        if (qstrcmp(everyWidget().at(place.kind).name, "OlvGridLayout") == 0) {
            continue; // its tiles have rows of their own
        }
        const HostileScene scene(place.kind);
        const QVariant usual =
            scene.objects().at(place.object)->property(place.property.constData());
        if (usual.userType() == QMetaType::QString || usual.userType() == QMetaType::QChar) {
            QTest::newRow(nameOf(place).constData()) << place;
        }
    }
}

void TestHostileValues::hugeTextIsStood()
{
    QFETCH(Place, place);
    constexpr int megabytes = 10;
    const QString text(megabytes * 1024 * 1024 / int(sizeof(QChar)), QLatin1Char('x'));
    HostileScene scene(place.kind);
    QObject *object = scene.objects().at(place.object);
    object->setProperty(place.property.constData(), text);
    QCOMPARE(object->property(place.property.constData()).toString(), text);
    scene.use();
    QVERIFY(scene.isInBounds());
}

ADD_TEST(TestHostileValues, QApplication)
#include "tst_hostilevalues.moc"
