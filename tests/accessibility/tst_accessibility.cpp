// SPDX-License-Identifier: MIT
#include "accessiblekinds.h"
#include "assistant.h"

#include <OlvWidgets/OlvWidgets>

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QLabel>
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
    void leavesOtherPushButtonsToQt();
    void isCalledAsTheApplicationSays_data();
    void isCalledAsTheApplicationSays();
    void isCalledByItsLabelOrItsToolTip();
    void saysTheToolTipOnce();
    void addsNothingToTheObject_data();
    void addsNothingToTheObject();
    void hidesKnobsAndHandles();
    void showsChildrenOfTheApplications();
    void tellsOnlyWhileSomebodyLooks();
    void tellsOfWidgetsMadeWhileSomebodyLooks();
    void tellsNothingTwice();
    void tellsNothingOfAWidgetThatGoes();
    void groupsThePartsOfALineEdit();
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

void TestAccessibility::leavesOtherPushButtonsToQt()
{
    const OlvControlBar bar({});
    QPushButton button(QStringLiteral("Save"));
    button.setToolTip(QStringLiteral("Writes the file"));
    QCOMPARE(nameOf(&button), QStringLiteral("Save"));
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

void TestAccessibility::isCalledByItsLabelOrItsToolTip()
{
    QWidget form;
    auto *row = new QHBoxLayout(&form);
    auto *label = new QLabel(QStringLiteral("&Wi-Fi"));
    auto *wifi = new OlvSwitch;
    row->addWidget(label);
    row->addWidget(wifi);
    QCOMPARE(nameOf(wifi), QString());
    wifi->setToolTip(QStringLiteral("the network without wires"));
    QCOMPARE(nameOf(wifi), QStringLiteral("the network without wires"));
    label->setBuddy(wifi);
    QCOMPARE(nameOf(wifi), QStringLiteral("Wi-Fi"));
    QCOMPARE(accessible(wifi)->relations().size(), 1);
}

void TestAccessibility::saysTheToolTipOnce()
{
    OlvSwitch wifi;
    wifi.setToolTip(QStringLiteral("the network without wires"));
    QCOMPARE(accessible(&wifi)->text(QAccessible::Description), QString());
    wifi.setAccessibleName(QStringLiteral("Wi-Fi"));
    QCOMPARE(accessible(&wifi)->text(QAccessible::Description),
             QStringLiteral("the network without wires"));
    wifi.setWhatsThis(QStringLiteral("turns it on and off"));
    QCOMPARE(accessible(&wifi)->text(QAccessible::Help), QStringLiteral("turns it on and off"));
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
    QAccessibleInterface *interface = accessible(&panel);
    QCOMPARE(interface->childCount(), 2);
    QCOMPARE(interface->child(0), accessible(&first));
    QCOMPARE(interface->child(1), accessible(&second));
    QVERIFY(!interface->child(2));
    QVERIFY(!interface->child(-1));
    QCOMPARE(interface->indexOfChild(accessible(&second)), 1);
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

void TestAccessibility::tellsOfWidgetsMadeWhileSomebodyLooks()
{
    Assistant assistant;
    OlvButton button(QStringLiteral("Save"));
    button.show();
    button.setText(QStringLiteral("Store"));
    QCOMPARE(assistant.heardOf(&button), QStringList{ QStringLiteral("name Store") });
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

void TestAccessibility::groupsThePartsOfALineEdit()
{
    OlvLineEdit edit;
    edit.setPlaceholderText(QStringLiteral("Password"));
    edit.setPassWord(true);
    edit.setAccessibleName(QStringLiteral("Log-in"));
    QAccessibleInterface *interface = accessible(&edit);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Log-in"));
    QCOMPARE(interface->childCount(), 2);
    QCOMPARE(interface->child(0)->role(), QAccessible::EditableText);
    QCOMPARE(interface->child(1)->text(QAccessible::Name), QStringLiteral("显示密码"));
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
