// SPDX-License-Identifier: MIT
#include "accessiblekinds.h"
#include "assistant.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QAccessibleWidget>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace {

void addKinds()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < accessibleKinds().size(); ++i) {
        QTest::newRow(accessibleKinds().at(i).name) << i;
    }
}

/** The kind of the row, in a parent. */
QWidget *makeKind(QWidget *parent)
{
    QFETCH(const int, kind);
    return accessibleKinds().at(kind).make(parent);
}

QAccessible::Role roleOfKind()
{
    QFETCH(const int, kind);
    return accessibleKinds().at(kind).role;
}

class OwnSwitch : public OlvSwitch
{
    Q_OBJECT

public:
    using OlvSwitch::OlvSwitch;
};

QStringList methodsOf(const QObject *object)
{
    QStringList names;
    for (int i = 0; i < object->metaObject()->methodCount(); ++i) {
        names << QString::fromLatin1(object->metaObject()->method(i).methodSignature());
    }
    return names;
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void hasItsRole_data();
    void hasItsRole();
    void knowsItsPlaceInTheTree_data();
    void knowsItsPlaceInTheTree();
    void isTheSameInADisabledParent_data();
    void isTheSameInADisabledParent();
    void isTheSameWhenSomebodyLooksFromTheStart_data();
    void isTheSameWhenSomebodyLooksFromTheStart();
    void holdsForSubclasses();
    void leavesSubclassesToTheApplication();
    void isCalledAsTheApplicationSays_data();
    void isCalledAsTheApplicationSays();
    void addsNothingToTheObject_data();
    void addsNothingToTheObject();
    void hidesKnobsAndHandles();
    void showsChildrenOfTheApplications();
    void takesTheFocusWhereItCan_data();
    void takesTheFocusWhereItCan();
    void knowsWhichChildHasTheFocus();
    void hasTheColorsOfItsPalette();
    void tellsOnlyWhileSomebodyLooks();
    void tellsNothingTwice();
    void tellsNothingOfAWidgetThatGoes();
};

void TestAccessibility::cleanup()
{
    QVERIFY(waitForDeferred());
}

void TestAccessibility::hasItsRole_data()
{
    addKinds();
}

void TestAccessibility::hasItsRole()
{
    QWidget parent;
    QWidget *widget = makeKind(&parent);
    QAccessibleInterface *interface = accessible(widget);
    QVERIFY(interface);
    QCOMPARE(interface->role(), roleOfKind());
    QVERIFY(interface->isValid());
    QVERIFY(!interface->state().invalid);
    QVERIFY(interface->state().invisible);
    QCOMPARE(interface->object(), widget);
}

void TestAccessibility::knowsItsPlaceInTheTree_data()
{
    addKinds();
}

void TestAccessibility::knowsItsPlaceInTheTree()
{
    QWidget parent;
    parent.resize(300, 200);
    QWidget *widget = makeKind(&parent);
    widget->setGeometry(20, 30, 200, 60);
    parent.show();

    QAccessibleInterface *interface = accessible(widget);
    QCOMPARE(interface->parent(), accessible(widget->parentWidget()));
    QVERIFY(interface->parent()->indexOfChild(interface) >= 0);
    QCOMPARE(interface->window(), parent.windowHandle());
    QCOMPARE(interface->rect(), QRect(widget->mapToGlobal(QPoint()), widget->size()));
    QVERIFY(!interface->state().invisible);
    QVERIFY(!interface->state().disabled);
    widget->setEnabled(false);
    QVERIFY(interface->state().disabled);
}

void TestAccessibility::isTheSameInADisabledParent_data()
{
    addKinds();
}

void TestAccessibility::isTheSameInADisabledParent()
{
    QWidget parent;
    parent.setEnabled(false);
    QCOMPARE(accessible(makeKind(&parent))->role(), roleOfKind());
}

void TestAccessibility::isTheSameWhenSomebodyLooksFromTheStart_data()
{
    addKinds();
}

void TestAccessibility::isTheSameWhenSomebodyLooksFromTheStart()
{
    const Assistant assistant;
    QWidget parent;
    QWidget *widget = makeKind(&parent);
    QCOMPARE(accessible(widget)->role(), roleOfKind());
    // one of Qt's own would not know it
    widget->setToolTip(QStringLiteral("what it does"));
    if (auto *button = qobject_cast<QPushButton *>(widget)) {
        button->setText(QChar(0xf013));
    }
    QCOMPARE(nameOf(widget), QStringLiteral("what it does"));
}

void TestAccessibility::holdsForSubclasses()
{
    OwnSwitch widget;
    QCOMPARE(accessible(&widget)->role(), QAccessible::CheckBox);
}

// here, before the first widget of the library
void TestAccessibility::initTestCase()
{
    const auto factory = [](const QString &className, QObject *object) -> QAccessibleInterface * {
        return className == QLatin1String("OlvSwitch")
            ? new QAccessibleWidget(qobject_cast<QWidget *>(object), QAccessible::Dial)
            : nullptr;
    };
    QAccessible::installFactory(factory);
    OlvSwitch widget;
    const QAccessible::Role role = accessible(&widget)->role();
    QAccessible::removeFactory(factory);
    QCOMPARE(role, QAccessible::Dial);
}

void TestAccessibility::leavesSubclassesToTheApplication()
{
    const auto factory = [](const QString &className, QObject *object) -> QAccessibleInterface * {
        return className == QLatin1String("OwnSwitch")
            ? new QAccessibleWidget(qobject_cast<QWidget *>(object), QAccessible::Dial)
            : nullptr;
    };
    QAccessible::installFactory(factory);
    OwnSwitch widget;
    QCOMPARE(accessible(&widget)->role(), QAccessible::Dial);
    QAccessible::removeFactory(factory);
}

void TestAccessibility::isCalledAsTheApplicationSays_data()
{
    addKinds();
}

void TestAccessibility::isCalledAsTheApplicationSays()
{
    QWidget parent;
    QWidget *widget = makeKind(&parent);
    widget->setToolTip(QStringLiteral("tool tip"));
    widget->setProperty("content", QStringLiteral("caption"));
    widget->setProperty("text", QStringLiteral("caption"));
    widget->setAccessibleName(QStringLiteral("the application's"));
    QCOMPARE(nameOf(widget), QStringLiteral("the application's"));
    widget->setAccessibleName(QString());
    QVERIFY(nameOf(widget) != QStringLiteral("the application's"));
}

void TestAccessibility::addsNothingToTheObject_data()
{
    addKinds();
}

void TestAccessibility::addsNothingToTheObject()
{
    QWidget parent;
    QWidget *widget = makeKind(&parent);
    const QStringList methods = methodsOf(widget);
    const int properties = widget->metaObject()->propertyCount();
    const QObjectList children = widget->children();
    parent.show(); // style sheets leave properties of their own
    const QList<QByteArray> dynamic = widget->dynamicPropertyNames();

    const Assistant assistant;
    callAll(accessible(widget));
    QCOMPARE(methodsOf(widget), methods);
    QCOMPARE(widget->metaObject()->propertyCount(), properties);
    QList<QByteArray> now = widget->dynamicPropertyNames();
    now.removeAll("timerId");   // the switch is under way
    now.removeAll("isChecked"); // the tile is clicked
    QList<QByteArray> before = dynamic;
    before.removeAll("isChecked");
    QCOMPARE(now, before);
    QCOMPARE(widget->children(), children);
    // what a subclass adds comes behind the signals that the class had before
    QCOMPARE(OwnSwitch::staticMetaObject.methodOffset(),
             OlvSwitch::staticMetaObject.methodOffset() + 1);
}

void TestAccessibility::hidesKnobsAndHandles()
{
    OlvSwitch wifi;
    OlvSlider volume;
    OlvFlexWidget panel(200, 100);
    QVERIFY(!wifi.findChildren<QWidget *>().isEmpty());
    QVERIFY(!volume.findChildren<QWidget *>().isEmpty());
    QVERIFY(!panel.findChildren<QWidget *>().isEmpty());
    QCOMPARE(accessible(&wifi)->childCount(), 0);
    QCOMPARE(accessible(&volume)->childCount(), 0);
    QCOMPARE(accessible(&panel)->childCount(), 0);
    QVERIFY(!accessible(&panel)->child(0));
    QCOMPARE(accessible(&panel)->indexOfChild(accessible(&wifi)), -1);
}

void TestAccessibility::showsChildrenOfTheApplications()
{
    OlvFlexWidget panel(200, 100);
    QLabel first(QStringLiteral("first"), &panel);
    QLabel second(QStringLiteral("second"), &panel);
    const QWidget dialog(&panel, Qt::Dialog); // a window is no part of another
    QAccessibleInterface *interface = accessible(&panel);
    QCOMPARE(interface->childCount(), 2);
    QCOMPARE(interface->child(0), accessible(&first));
    QCOMPARE(interface->child(1), accessible(&second));
    QVERIFY(!interface->child(2));
    QVERIFY(!interface->child(-1));
    QCOMPARE(interface->indexOfChild(accessible(&second)), 1);
}

void TestAccessibility::takesTheFocusWhereItCan_data()
{
    addKinds();
}

void TestAccessibility::takesTheFocusWhereItCan()
{
    QWidget parent;
    QWidget *widget = makeKind(&parent);
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    const QString action = QAccessibleActionInterface::setFocusAction();
    for (const Qt::FocusPolicy policy : { Qt::NoFocus, Qt::StrongFocus }) {
        widget->setFocusPolicy(policy);
        QCOMPARE(bool(accessible(widget)->state().focusable), policy != Qt::NoFocus);
        QCOMPARE(act(widget, action), policy != Qt::NoFocus);
    }
    QVERIFY(widget->hasFocus() || widget->isAncestorOf(QApplication::focusWidget()));
}

void TestAccessibility::knowsWhichChildHasTheFocus()
{
    OlvFlexWidget panel(200, 100);
    QLineEdit text(&panel);
    panel.show();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    text.clearFocus();
    QVERIFY(!accessible(&panel)->focusChild());
    text.setFocus();
    QCOMPARE(accessible(&panel)->focusChild(), accessible(&text));
}

void TestAccessibility::hasTheColorsOfItsPalette()
{
    OlvSwitch widget;
    QPalette palette;
    palette.setColor(widget.foregroundRole(), Qt::darkGreen);
    palette.setColor(widget.backgroundRole(), Qt::yellow);
    widget.setPalette(palette);
    QCOMPARE(accessible(&widget)->foregroundColor(), QColor(Qt::darkGreen));
    QCOMPARE(accessible(&widget)->backgroundColor(), QColor(Qt::yellow));
}

void TestAccessibility::tellsOnlyWhileSomebodyLooks()
{
    OlvButton button(QStringLiteral("Save"));
    button.show();
    accessible(&button);
    button.setText(QStringLiteral("Store"));
    {
        Assistant assistant;
        button.setText(QStringLiteral("Keep"));
        QCOMPARE(assistant.heardOf(&button), QStringList{ QStringLiteral("name Keep") });
    }
    button.setText(QStringLiteral("Save"));
    {
        Assistant assistant;
        QCOMPARE(assistant.heardOf(&button), QStringList());
        button.setText(QStringLiteral("Save as"));
        QCOMPARE(assistant.heardOf(&button), QStringList{ QStringLiteral("name Save as") });
    }
}

void TestAccessibility::tellsNothingTwice()
{
    Assistant assistant;
    OlvButton button(QStringLiteral("Save"));
    button.setToolTip(QStringLiteral("Writes the file"));
    button.show();
    assistant.heardOf(&button);
    button.setText(QStringLiteral("Save"));
    button.setChecked(false);
    button.setProperty("isChecked", 0);
    button.setProperty("color", QStringLiteral("success"));
    button.setToolTip(QStringLiteral("Writes the document"));
    QCOMPARE(assistant.heardOf(&button), QStringList());
    // Qt tells of the name that an application gives, and while there is one no other counts
    button.setAccessibleName(QStringLiteral("Save the document"));
    button.setText(QStringLiteral("Store"));
    QCOMPARE(assistant.heardOf(&button), QStringList{ QStringLiteral("name Save the document") });
}

void TestAccessibility::tellsNothingOfAWidgetThatGoes()
{
    Assistant assistant;
    const QPointer<OlvButton> button(new OlvButton(QStringLiteral("Save")));
    // connected before Qt connects: the end has begun, and the interface is still there
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(accessible(button)));
    button->disconnect();
    bool isWritten = false;
    connect(button, &QObject::destroyed, this, [&](QObject *object) {
        assistant.heardOf(object);
        object->setProperty("content", QStringLiteral("Store"));
        isWritten = true;
    });
    QVERIFY(accessible(button));
    const QObject *address = button;
    delete button;
    QVERIFY(isWritten);
    QCOMPARE(assistant.heardOf(address), QStringList());
}

ADD_TEST(TestAccessibility, QApplication)
#include "tst_accessibility.moc"
