// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvSystemInfo/OlvSystemInfo>
#include <OlvWidgets/OlvWidgets>

#include <QMetaMethod>
#include <QTest>

namespace {

template <class Class, class Base>
void addClass(const char *name, std::initializer_list<const char *> methods,
              const QStringList &enumerators = QStringList())
{
    QStringList lines;
    for (const char *method : methods) {
        lines.append(QLatin1String(method));
    }
    QTest::newRow(name) << &Class::staticMetaObject << &Base::staticMetaObject << lines
                        << enumerators;
}

/** A method with its kind, what it returns, and the names of its parameters. */
QString described(const QMetaMethod &method)
{
    const QString kind = method.methodType() == QMetaMethod::Signal ? QStringLiteral("signal")
        : method.attributes() & QMetaMethod::Cloned                 ? QStringLiteral("cloned slot")
                                                                    : QStringLiteral("slot");
    return QStringLiteral("%1 %2 %3 %4")
        .arg(kind, QLatin1String(method.typeName()), QLatin1String(method.methodSignature()),
             QLatin1String(method.parameterNames().join(',')))
        .trimmed();
}

} // namespace

Q_DECLARE_METATYPE(const QMetaObject *)

/** What forms, style sheets and QML see of the classes; adding to it is a change of the interface.
 */
class TestMetaObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheMethodsOfItsClassInOrder_data();
    void hasTheMethodsOfItsClassInOrder();
    void helpersHaveNone();
};

void TestMetaObjects::hasTheMethodsOfItsClassInOrder_data()
{
    QTest::addColumn<const QMetaObject *>("meta");
    QTest::addColumn<const QMetaObject *>("base");
    QTest::addColumn<QStringList>("methods");
    QTest::addColumn<QStringList>("enumerators");
    addClass<OlvWidget, QWidget>(
        "OlvWidget",
        { "signal void valueChanged(QVariant)", "signal void inputMethodCommit(QString)" });
    addClass<OlvButton, OlvWidget>("OlvButton",
                                   { "signal void clicked()", "signal void toggled(bool) checked",
                                     "slot void click(bool) checked", "cloned slot void click()" });
    addClass<OlvIconButton, OlvWidget>("OlvIconButton",
                                       { "signal void clicked()", "signal void dClicked()" });
    addClass<OlvSimpleIconButton, QPushButton>("OlvSimpleIconButton", {});
    addClass<OlvLineEdit, OlvWidget>("OlvLineEdit", { "signal void textChanged(QString)" });
    addClass<OlvShortcutEdit, OlvWidget>("OlvShortcutEdit",
                                         { "signal void shortcutChanged(OlvShortcut*)",
                                           "slot bool setShortcut(OlvShortcut*) shortcut",
                                           "slot void clear()" });
    addClass<OlvSwitch, OlvWidget>("OlvSwitch", { "signal void changed(bool)" });
    addClass<OlvSlider, OlvWidget>("OlvSlider", {});
    addClass<OlvControlBar, QWidget>(
        "OlvControlBar",
        { "signal void changed(OlvControlBar::WindowState,bool) state,checked",
          "signal void custom(int) index" });
    addClass<OlvDragWidget, QWidget>("OlvDragWidget", {});
    addClass<OlvGridLayout, QWidget>("OlvGridLayout", {});
    addClass<OlvFlexWidget, QWidget>("OlvFlexWidget", { "signal void clicked()" });
    addClass<OlvShortcut, QObject>(
        "OlvShortcut",
        { "signal void activated()", "signal void stateChanged(OlvShortcut::State) state" },
        { QStringLiteral("State") });
}

void TestMetaObjects::hasTheMethodsOfItsClassInOrder()
{
    QFETCH(const QMetaObject *, meta);
    QFETCH(const QMetaObject *, base);
    QFETCH(QStringList, methods);
    QFETCH(QStringList, enumerators);
    QCOMPARE(meta->className(), QTest::currentDataTag());
    QCOMPARE(meta->superClass(), base);
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
    QStringList seenEnumerators;
    for (int i = meta->enumeratorOffset(); i < meta->enumeratorCount(); ++i) {
        seenEnumerators.append(QLatin1String(meta->enumerator(i).name()));
    }
    QCOMPARE(seenEnumerators, enumerators);
    QCOMPARE(meta->classInfoCount(), meta->classInfoOffset());
    QStringList seen;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        QCOMPARE(meta->method(i).access(), QMetaMethod::Public);
        seen.append(described(meta->method(i)));
    }
    QCOMPARE(seen, methods);
}

void TestMetaObjects::helpersHaveNone()
{
    QCOMPARE(&SwitchRound::staticMetaObject, &QWidget::staticMetaObject);
    QCOMPARE(&SliderRound::staticMetaObject, &QWidget::staticMetaObject);
    QCOMPARE(&OlvResizeItem::staticMetaObject, &QWidget::staticMetaObject);
    QCOMPARE(&OlvResizeWidget::staticMetaObject, &QObject::staticMetaObject);
    QCOMPARE(&OlvMoveWidget::staticMetaObject, &QObject::staticMetaObject);
    QCOMPARE(&OlvPluginEventFilter::staticMetaObject, &QObject::staticMetaObject);
}

ADD_TEST(TestMetaObjects, QApplication)
#include "tst_metaobjects.moc"
