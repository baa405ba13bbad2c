// SPDX-License-Identifier: MIT
#include "sizedlineedit.h"
#include "testprogram.h"

#include <QFontMetrics>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>

namespace {

/** Writes down for what reasons a widget gets the focus. */
class FocusReasons : public QObject
{
public:
    explicit FocusReasons(QObject *object)
    {
        object->installEventFilter(this); // clazy:exclude=install-event-filter
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn) {
            in.append(static_cast<QFocusEvent *>(event)->reason());
        }
        return QObject::eventFilter(watched, event);
    }
    QList<Qt::FocusReason> in;
};

} // namespace

class TestLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsOutItsText();
    void startsEmptyWithItsDefaults();
    void placesItsChildrenAtTheFirstResize();
    void keepsItsSignalsSilent();
    void valueIsTheText();
    void fontIsHalfAsManyPointsAsItIsHigh_data();
    void fontIsHalfAsManyPointsAsItIsHigh();
    void makesRoomForTheIcon_data();
    void makesRoomForTheIcon();
    void measuresTheIconWithItsPresentFont();
    void passwordModeShowsTheButtonAndHidesTheText();
    void passwordButtonShowsAndHidesTheText();
    void passwordButtonKeepsItsStateBetweenModes();
    void passwordIconsGoToTheButton();
    void narrowPasswordLineLeavesNoRoomForTheText();
    void stateFollowsTheFocusOfTheText();
    void filterConsumesNothing();
    void anyClickOnTheFrameFocusesTheText();
    void takesTextFromAnInputMethod();
    void activatesItsWindow();
    void survivesTheLossOfItsChildren();
};

void TestLineEdit::handsOutItsText()
{
    OlvLineEdit edit;
    QCOMPARE(edit.lineEdit(), edit.findChild<QLineEdit *>());
    edit.lineEdit()->setText(QStringLiteral("typed"));
    QCOMPARE(edit.getText(), QStringLiteral("typed"));
    delete edit.lineEdit();
    QVERIFY(!edit.lineEdit());
}

void TestLineEdit::startsEmptyWithItsDefaults()
{
    QWidget parent;
    OlvLineEdit edit(&parent);
    QCOMPARE(edit.parentWidget(), &parent);
    QCOMPARE(edit.dynamicPropertyNames(),
             QList<QByteArray>({ "Icon", "IconWidth", "Pwd", "Visible", "Invisible", "state" }));
    QCOMPARE(edit.property("Icon"), QVariant(QString()));
    QCOMPARE(edit.property("IconWidth"), QVariant(0));
    QCOMPARE(edit.property("IconWidth").userType(), int(QMetaType::Int));
    QCOMPARE(edit.property("Pwd"), QVariant(false));
    QCOMPARE(edit.property("Pwd").userType(), int(QMetaType::Bool));
    QCOMPARE(edit.property("Visible"), QVariant(QString(QChar(0x270d))));
    QCOMPARE(edit.property("Invisible"), QVariant(QString(QChar(0x203b))));
    QCOMPARE(edit.property("state"), QVariant(QStringLiteral("normal")));
    QCOMPARE(edit.focusPolicy(), Qt::StrongFocus);

    QCOMPARE(edit.children(), QObjectList({ editorOf(edit), buttonOf(edit) }));
    QCOMPARE(editorOf(edit)->styleSheet(),
             QStringLiteral("border: none;background-color:rgba(0,0,0,0)"));
    QCOMPARE(editorOf(edit)->echoMode(), QLineEdit::Normal);
    QCOMPARE(buttonOf(edit)->text(), QStringLiteral("✍"));
    QCOMPARE(buttonOf(edit)->property("enable"), QVariant(QStringLiteral("※")));
    QCOMPARE(buttonOf(edit)->font().family(), QStringLiteral("FontAwesome"));
    QVERIFY(buttonOf(edit)->isHidden());
}

void TestLineEdit::placesItsChildrenAtTheFirstResize()
{
    QWidget parent;
    OlvLineEdit edit(&parent);
    QCOMPARE(editorOf(edit)->pos(), QPoint(0, 0));
    QCOMPARE(buttonOf(edit)->geometry(), QRect(0, 0, 30, 30));

    edit.resize(240, 32);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QCOMPARE(editorOf(edit)->geometry(), QRect(32, 0, 208, 32));
    QCOMPARE(buttonOf(edit)->geometry(), QRect(208, 0, 32, 32));
}

void TestLineEdit::keepsItsSignalsSilent()
{
    SizedLineEdit edit;
    QSignalSpy textChanged(&edit, &OlvLineEdit::textChanged);
    QSignalSpy valueChanged(&edit, &OlvWidget::valueChanged);
    edit.setText(QStringLiteral("a"));
    edit.setValue(QStringLiteral("b"));
    QTest::keyClicks(editorOf(edit), QStringLiteral("cd"));
    QCOMPARE(edit.getText(), QStringLiteral("bcd"));
    QCOMPARE(textChanged.count() + valueChanged.count(), 0);
}

void TestLineEdit::valueIsTheText()
{
    SizedLineEdit edit;
    QCOMPARE(edit.getValue(), QVariant(QString()));
    edit.setText(QStringLiteral("文字"));
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("文字")));
    QCOMPARE(edit.getValue().userType(), int(QMetaType::QString));
    edit.setValue(12);
    QCOMPARE(edit.getText(), QStringLiteral("12"));
    edit.setValue(QVariant());
    QCOMPARE(edit.getText(), QString());
    edit.setPlaceholderText(QStringLiteral("name"));
    QCOMPARE(editorOf(edit)->placeholderText(), QStringLiteral("name"));
}

void TestLineEdit::fontIsHalfAsManyPointsAsItIsHigh_data()
{
    QTest::addColumn<int>("height");
    for (const int height : { 0, 1, 2, 3, 31, 32, 90 }) {
        QTest::addRow("%d pixels", height) << height;
    }
}

void TestLineEdit::fontIsHalfAsManyPointsAsItIsHigh()
{
    QFETCH(int, height);
    SizedLineEdit edit;
    edit.setSize({ 200, height });
    // a font of no points does not exist: the size before stays
    const int points = height / 2 > 0 ? height / 2 : 16;
    QCOMPARE(edit.font().pointSize(), points);
    QCOMPARE(editorOf(edit)->font().pointSize(), points);
    QCOMPARE(buttonOf(edit)->font().pointSize(), points);
    QCOMPARE(buttonOf(edit)->font().family(), edit.font().family());
}

void TestLineEdit::makesRoomForTheIcon_data()
{
    QTest::addColumn<QString>("icon");
    QTest::newRow("none") << QString();
    QTest::newRow("glyph") << QString(QChar(0xf023));
    QTest::newRow("words") << QStringLiteral("user name:");
}

void TestLineEdit::makesRoomForTheIcon()
{
    QFETCH(QString, icon);
    SizedLineEdit edit({ 400, 32 });
    edit.setIcon(icon);
    QCOMPARE(edit.property("Icon"), QVariant(icon));
    const int width = qMax(QFontMetrics(edit.font()).boundingRect(icon).width() + 5, 32);
    QCOMPARE(edit.property("IconWidth"), QVariant(width));
    QCOMPARE(editorOf(edit)->geometry(), QRect(width, 0, 400 - width, 32));

    edit.setPassWord(true);
    QCOMPARE(editorOf(edit)->geometry(), QRect(width, 0, 400 - width - 32, 32));
    QCOMPARE(buttonOf(edit)->geometry(), QRect(400 - 32, 0, 32, 32));
}

void TestLineEdit::measuresTheIconWithItsPresentFont()
{
    OlvLineEdit edit;
    edit.resize(400, 60);
    const QString icon = QStringLiteral("a rather long icon");
    edit.setIcon(icon); // sizes the font by itself, before any resize event
    QCOMPARE(edit.font().pointSize(), 30);
    QCOMPARE(edit.property("IconWidth"),
             QVariant(qMax(QFontMetrics(edit.font()).boundingRect(icon).width() + 5, 60)));
}

void TestLineEdit::passwordModeShowsTheButtonAndHidesTheText()
{
    SizedLineEdit edit;
    edit.setPassWord(true);
    QCOMPARE(edit.property("Pwd"), QVariant(true));
    QVERIFY(!buttonOf(edit)->isHidden());
    QCOMPARE(editorOf(edit)->echoMode(), QLineEdit::Password);
    edit.setPassWord(false);
    QCOMPARE(edit.property("Pwd"), QVariant(false));
    QVERIFY(buttonOf(edit)->isHidden());
    QCOMPARE(editorOf(edit)->echoMode(), QLineEdit::Normal);
}

void TestLineEdit::passwordButtonShowsAndHidesTheText()
{
    SizedLineEdit edit;
    edit.setPassWord(true);
    QTest::mouseClick(buttonOf(edit), Qt::LeftButton);
    QCOMPARE(editorOf(edit)->echoMode(), QLineEdit::Normal);
    QCOMPARE(buttonOf(edit)->text(), QStringLiteral("※"));
    QTest::mouseClick(buttonOf(edit), Qt::LeftButton);
    QCOMPARE(editorOf(edit)->echoMode(), QLineEdit::Password);
    QCOMPARE(buttonOf(edit)->text(), QStringLiteral("✍"));
}

void TestLineEdit::passwordButtonKeepsItsStateBetweenModes()
{
    SizedLineEdit edit;
    edit.setPassWord(true);
    buttonOf(edit)->click();
    edit.setPassWord(false);
    QCOMPARE(editorOf(edit)->echoMode(), QLineEdit::Normal);
    edit.setPassWord(true);
    QVERIFY(buttonOf(edit)->isChecked());
    QCOMPARE(editorOf(edit)->echoMode(), QLineEdit::Password);
    buttonOf(edit)->click();
    QCOMPARE(editorOf(edit)->echoMode(), QLineEdit::Password);
}

void TestLineEdit::passwordIconsGoToTheButton()
{
    SizedLineEdit edit;
    edit.setPwdIcon(QStringLiteral("a"), QStringLiteral("b"));
    QCOMPARE(buttonOf(edit)->text(), QStringLiteral("a"));
    buttonOf(edit)->click();
    QCOMPARE(buttonOf(edit)->text(), QStringLiteral("b"));
}

void TestLineEdit::narrowPasswordLineLeavesNoRoomForTheText()
{
    SizedLineEdit edit({ 50, 40 });
    edit.setPassWord(true);
    QCOMPARE(editorOf(edit)->pos(), QPoint(40, 0));
    QVERIFY(editorOf(edit)->width() <= 0);
    QCOMPARE(buttonOf(edit)->geometry(), QRect(10, 0, 40, 40));
    QVERIFY(!edit.grab().isNull());
}

void TestLineEdit::stateFollowsTheFocusOfTheText()
{
    SizedLineEdit edit;
    sendFocus(editorOf(edit), QEvent::FocusIn);
    QCOMPARE(edit.property("state"), QVariant(QStringLiteral("edit")));
    sendFocus(editorOf(edit), QEvent::FocusOut);
    QCOMPARE(edit.property("state"), QVariant(QStringLiteral("normal")));
    sendFocus(&edit, QEvent::FocusIn);
    QCOMPARE(edit.property("state"), QVariant(QStringLiteral("normal")));
}

void TestLineEdit::filterConsumesNothing()
{
    SizedLineEdit edit;
    for (const QEvent::Type type : { QEvent::FocusIn, QEvent::FocusOut, QEvent::KeyPress }) {
        QEvent event(type);
        QVERIFY(!edit.eventFilter(editorOf(edit), &event));
    }
}

void TestLineEdit::anyClickOnTheFrameFocusesTheText()
{
    SizedLineEdit edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton }) {
        editorOf(edit)->clearFocus();
        FocusReasons reasons(editorOf(edit));
        QTest::mouseRelease(&edit, button, {}, { 3, 3 });
        QTRY_VERIFY(editorOf(edit)->hasFocus());
        QCOMPARE(reasons.in, QList<Qt::FocusReason>({ Qt::OtherFocusReason }));
        QCOMPARE(edit.property("state"), QVariant(QStringLiteral("edit")));
    }
}

void TestLineEdit::takesTextFromAnInputMethod()
{
    SizedLineEdit edit;
    edit.openInputMethod();
    QSignalSpy commits(&edit, &OlvWidget::inputMethodCommit);
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("中文"));
    QCoreApplication::sendEvent(&edit, &event);
    QCOMPARE(commits.count(), 1);
    QCOMPARE(commits.first().first().toString(), QStringLiteral("中文"));

    QInputMethodEvent inner;
    inner.setCommitString(QStringLiteral("字"));
    QCoreApplication::sendEvent(editorOf(edit), &inner);
    QCOMPARE(edit.getText(), QStringLiteral("字"));
}

void TestLineEdit::activatesItsWindow()
{
    QWidget window;
    QWidget other;
    window.show();
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    new OlvLineEdit(&window);
    QTRY_VERIFY(window.isActiveWindow());
}

void TestLineEdit::survivesTheLossOfItsChildren()
{
    SizedLineEdit edit;
    edit.setText(QStringLiteral("text"));
    edit.setPassWord(true);
    delete buttonOf(edit);
    edit.setPwdIcon(QStringLiteral("a"), QStringLiteral("b"));
    edit.setSize({ 300, 40 });
    QCOMPARE(edit.getText(), QStringLiteral("text"));
    QCOMPARE(editorOf(edit)->geometry(), QRect(40, 0, 220, 40));

    delete editorOf(edit);
    edit.setText(QStringLiteral("else"));
    edit.setValue(QStringLiteral("else"));
    edit.setPlaceholderText(QStringLiteral("else"));
    edit.setPassWord(false);
    edit.setIcon(QStringLiteral("@"));
    QTest::mouseRelease(&edit, Qt::LeftButton);
    QCOMPARE(edit.getText(), QString());
    QCOMPARE(edit.getValue(), QVariant(QString()));
    QVERIFY(!edit.grab().isNull());
}

ADD_TEST(TestLineEdit, QApplication)
#include "tst_lineedit.moc"
