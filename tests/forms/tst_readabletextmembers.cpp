// SPDX-License-Identifier: MIT
// When the colours of texts are given, and what is left of that.
#include "deferred.h"
#include "onevent.h"
#include "pixels.h"
#include "resolvemask.h"
#include "sizedlineedit.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QApplication>
#include <QStyleFactory>
#include <QTest>

namespace {

/** Sets the palette of the application, of which Qt 6 tells the widgets in the event loop. */
void setApplicationPalette(const QPalette &palette)
{
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
}

QPalette withText(const QColor &color)
{
    QPalette palette;
    palette.setColor(QPalette::Text, color);
    return palette;
}

QColor textColor(const OlvLineEdit *edit)
{
    return edit->lineEdit()->palette().color(QPalette::Text);
}

bool isDark(const QColor &color)
{
    return qGray(color.rgb()) < 119; // which is a little less than a contrast of 4.5 on white
}

} // namespace

class TestReadableTextMembers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_before = QApplication::palette();
    }
    void cleanup()
    {
        qApp->setStyleSheet(QString());
        QApplication::setPalette(m_before);
        runDeferred();
    }
    void comesOnceATextHasItsStyle();
    void followsThePaletteOfTheApplication();
    void followsThePaletteOfTheText();
    void followsAStyleSheet();
    void followsAnotherStyle();
    void followsTheEnabledState();
    void followsWhetherItIsFaded();
    void followsWhetherAPasswordIsAsked();
    void followsWidgetsThatComeAndGo();
    void leavesNothingBehind_data();
    void leavesNothingBehind();
    void leavesWhatTheApplicationHasSet();
    void leavesNothingBehindAStyleSheet();
    void standsADeletion_data();
    void standsADeletion();

private:
    QPalette m_before;
};

void TestReadableTextMembers::comesOnceATextHasItsStyle()
{
    QApplication::setPalette(withText(Qt::white));
    WidgetForm form;
    new OlvFormSupport(&form);
    QCOMPARE(textColor(form.name), QColor(Qt::white)); // it is not shown yet
    form.show();
    QVERIFY(isDark(textColor(form.name)));
    new OlvLineEdit(&form);
    auto *late = new OlvLineEdit(&form);
    late->show();
    QVERIFY(isDark(textColor(late)));
}

void TestReadableTextMembers::followsThePaletteOfTheApplication()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    for (const QColor &color : { QColor(255, 255, 255), QColor(255, 220, 0), QColor(0, 0, 90) }) {
        setApplicationPalette(withText(color));
        QVERIFY(isDark(textColor(form.name)));
    }
    QCOMPARE(textColor(form.name), QColor(0, 0, 90));
}

void TestReadableTextMembers::followsThePaletteOfTheText()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QLineEdit *text = form.name->lineEdit();
    text->setPalette(withText(Qt::yellow));
    QVERIFY(isDark(textColor(form.name)));
    text->setPalette(withText(Qt::darkRed));
    QCOMPARE(textColor(form.name), QColor(Qt::darkRed));
    QApplication::setPalette(withText(Qt::white));
    text->setPalette(QPalette());
    QTRY_VERIFY(isDark(textColor(form.name)));
}

void TestReadableTextMembers::followsAStyleSheet()
{
    QApplication::setPalette(withText(Qt::white));
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    for (const char *sheet : { "QLineEdit { color: yellow; }", "QLineEdit { color: #ff8080; }", "",
                               "QPushButton { color: red; }", "QLineEdit { margin: 1px; }", "" }) {
        qApp->setStyleSheet(QString::fromLatin1(sheet));
        QVERIFY2(isDark(textColor(form.name)), sheet);
    }
    form.name->lineEdit()->setStyleSheet(QStringLiteral("color: white"));
    QVERIFY(isDark(textColor(form.name)));
    form.name->lineEdit()->setStyleSheet(QString());
    QTRY_VERIFY(isDark(textColor(form.name)));
}

void TestReadableTextMembers::followsAnotherStyle()
{
    QApplication::setPalette(withText(Qt::white));
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    const QString before = QApplication::style()->objectName();
    for (const QString &style : { QStringLiteral("windows"), before }) {
        QApplication::setStyle(style);
        QVERIFY(isDark(textColor(form.name)));
    }
}

void TestReadableTextMembers::followsTheEnabledState()
{
    WidgetForm form;
    auto *own = new QWidget; // no support
    own->setAttribute(Qt::WA_DeleteOnClose);
    new OlvFormSupport(&form, OlvFormSupport::ReadableText);
    form.show();
    delete own;
    const auto disabled = [&] {
        return form.name->lineEdit()->palette().color(QPalette::Disabled, QPalette::Text);
    };
    QCOMPARE(disabled(), QColor(153, 153, 153)); // two fifths of black
    form.setEnabled(false);
    QCOMPARE(form.name->lineEdit()->palette().color(QPalette::Text), QColor(153, 153, 153));
    form.setEnabled(true);
    QCOMPARE(textColor(form.name), QColor(Qt::black));
}

void TestReadableTextMembers::followsWhetherItIsFaded()
{
    WidgetForm form;
    auto *support = new OlvFormSupport(&form);
    form.show();
    form.setEnabled(false);
    QCOMPARE(textColor(form.name), QColor(Qt::black)); // which the whole widget's fading pales
    support->setFeatures(OlvFormSupport::ReadableText);
    QCOMPARE(textColor(form.name), QColor(153, 153, 153));
    support->setFeatures(OlvFormSupport::AllFeatures);
    QCOMPARE(textColor(form.name), QColor(Qt::black));
}

void TestReadableTextMembers::followsWhetherAPasswordIsAsked()
{
    WidgetForm form;
    const QString before = buttonOf(*form.name)->styleSheet();
    auto *support = new OlvFormSupport(&form);
    QCOMPARE(buttonOf(*form.name)->styleSheet(), before);
    form.name->setPassWord(true);
    QCOMPARE(buttonOf(*form.name)->styleSheet(), buttonOf(*form.password)->styleSheet());
    QVERIFY(buttonOf(*form.name)->styleSheet() != before);
    buttonOf(*form.password)->setStyleSheet(QStringLiteral("color: blue"));
    delete support;
    QCOMPARE(buttonOf(*form.name)->styleSheet(), before);
    QCOMPARE(buttonOf(*form.password)->styleSheet(), QStringLiteral("color: blue"));
}

void TestReadableTextMembers::followsWidgetsThatComeAndGo()
{
    QApplication::setPalette(withText(Qt::white));
    QWidget window;
    new OlvFormSupport(&window);
    window.show();
    QWidget other;
    other.show();
    auto *edit = new OlvLineEdit(&other);
    edit->show();
    QCOMPARE(textColor(edit), QColor(Qt::white));
    for (int i = 0; i < 2; ++i) {
        edit->setParent(&window);
        edit->show();
        QVERIFY(isDark(textColor(edit)));
        edit->setParent(&other);
        edit->show();
        QCOMPARE(textColor(edit), QColor(Qt::white));
    }
}

void TestReadableTextMembers::leavesNothingBehind_data()
{
    QTest::addColumn<bool>("deletes");
    QTest::addColumn<bool>("isEnabled");
    for (const bool isEnabled : { true, false }) {
        QTest::addRow("deleted, %s", isEnabled ? "enabled" : "disabled") << true << isEnabled;
        QTest::addRow("switched off, %s", isEnabled ? "enabled" : "disabled") << false << isEnabled;
    }
}

void TestReadableTextMembers::leavesNothingBehind()
{
    QFETCH(bool, deletes);
    QFETCH(bool, isEnabled);
    QApplication::setPalette(withText(QColor(255, 240, 240)));
    WidgetForm form;
    form.name->setIcon(QStringLiteral("i"));
    form.name->setText(QStringLiteral("Li Wei"));
    form.password->setPlaceholderText(QStringLiteral("Password"));
    for (QWidget *field :
         { static_cast<QWidget *>(form.name), static_cast<QWidget *>(form.password),
           static_cast<QWidget *>(form.shortcut) }) {
        field->setMinimumSize(160, 30);
    }
    form.setEnabled(isEnabled);
    form.show();
    const QImage picture = form.grab().toImage();
    const auto palettes = [&] {
        QVector<QPalette> all;
        const auto widgets = form.findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            all.append(widget->palette());
        }
        return all;
    };
    const QVector<QPalette> before = palettes();
    auto *support = new OlvFormSupport(&form, OlvFormSupport::ReadableText);
    QVERIFY(palettes() != before);
    QVERIFY(form.grab().toImage() != picture);
    if (deletes) {
        delete support;
    } else {
        support->setFeatures({});
    }
    const QVector<QPalette> after = palettes();
    QCOMPARE(after, before);
    for (int i = 0; i < after.size(); ++i) {
        QCOMPARE(resolveMask(after.at(i)), resolveMask(before.at(i)));
    }
    COMPARE_PICTURES(form.grab().toImage(), picture);
}

void TestReadableTextMembers::leavesWhatTheApplicationHasSet()
{
    WidgetForm form;
    form.name->lineEdit()->setPalette(withText(Qt::yellow));
    form.show();
    auto *support = new OlvFormSupport(&form);
    QVERIFY(isDark(textColor(form.name)));
    form.password->lineEdit()->setPalette(withText(Qt::cyan));
    QVERIFY(isDark(textColor(form.password)));
    delete support;
    QCOMPARE(textColor(form.name), QColor(Qt::yellow));
    QCOMPARE(textColor(form.password), QColor(Qt::cyan));
}

/** Which notes the palette of a text when it takes hold, and restores it later. */
void TestReadableTextMembers::leavesNothingBehindAStyleSheet()
{
    QApplication::setPalette(withText(Qt::white));
    WidgetForm untouched;
    untouched.show();
    WidgetForm form;
    auto *support = new OlvFormSupport(&form);
    form.show();
    const auto check = [&] {
        const QPalette is = form.name->lineEdit()->palette();
        const QPalette was = untouched.name->lineEdit()->palette();
        QCOMPARE(is, was);
        QCOMPARE(resolveMask(is), resolveMask(was));
    };
    qApp->setStyleSheet(QStringLiteral("QLineEdit { color: yellow; }"));
    QVERIFY(isDark(textColor(form.name)));
    qApp->setStyleSheet(QStringLiteral("QPushButton { color: red; }"));
    QVERIFY(isDark(textColor(form.name)));
    runDeferred();
    delete support;
    check();
    qApp->setStyleSheet(QStringLiteral("QLineEdit { color: lime; }"));
    check();
    qApp->setStyleSheet(QString());
    check();
}

void TestReadableTextMembers::standsADeletion_data()
{
    QTest::addColumn<QString>("cause");
    QTest::addColumn<QString>("victim");
    for (const char *cause : { "given", "taken", "disabled", "palette" }) {
        // not the widget that gets a palette, which Qt does not stand
        for (const char *victim : { "support", "next" }) {
            QTest::addRow("%s, %s", cause, victim)
                << QString::fromLatin1(cause) << QString::fromLatin1(victim);
        }
    }
}

void TestReadableTextMembers::standsADeletion()
{
    QFETCH(QString, cause);
    QFETCH(QString, victim);
    QApplication::setPalette(withText(Qt::white));
    WidgetForm form;
    form.show();
    const bool isGiven = cause == QLatin1String("given");
    auto *support =
        new OlvFormSupport(&form,
                           isGiven ? OlvFormSupport::Features()
                                   : OlvFormSupport::ReadableText | OlvFormSupport::Features());
    const QHash<QString, QObject *> victims{ { QStringLiteral("support"), support },
                                             { QStringLiteral("next"), form.password } };
    const QPointer<QObject> deleted(victims.value(victim));
    OnEvent deletion(form.name->lineEdit(), QEvent::PaletteChange, [deleted] { delete deleted; });
    if (cause == QLatin1String("palette")) {
        setApplicationPalette(withText(Qt::yellow));
    } else if (cause == QLatin1String("taken")) {
        support->setFeatures({});
    } else {
        support->setFeatures(OlvFormSupport::AllFeatures); // is to be faded from now on
    }
    QVERIFY(deletion.happened());
    QVERIFY(!deleted);
    QVERIFY(!form.grab().isNull());
}

ADD_TEST(TestReadableTextMembers, QApplication)
#include "tst_readabletextmembers.moc"
