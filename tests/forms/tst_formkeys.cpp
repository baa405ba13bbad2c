// SPDX-License-Identifier: MIT
#include "notingform.h"
#include "testprogram.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int animationTime = 600; // milliseconds, with some to spare

} // namespace

class TestFormKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flipASwitch();
    void flipASwitchOnceWhileItSlides();
    void leaveEnterToTheForm();
    void pressGlyphsOutsideDialogs();
    void comeBeforeTheDefaultButton();
    void moveASlider_data();
    void moveASlider();
    void goOnToTheForm_data();
    void goOnToTheForm();
    void doNothingWithoutTheFeature();
    void doNothingToADisabledWidget();
    void leaveKeysToFiltersOfTheApplication();
};

void TestFormKeys::flipASwitch()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    QSignalSpy changed(form.wifi, &OlvSwitch::changed);
    QVERIFY(sendKey(form.wifi, QEvent::KeyPress, Qt::Key_Space));
    QVERIFY(sendKey(form.wifi, QEvent::KeyRelease, Qt::Key_Space, true));
    QVERIFY(sendKey(form.wifi, QEvent::KeyPress, Qt::Key_Space, true));
    QVERIFY(!form.wifi->isChecked());
    sendKey(form.wifi, QEvent::KeyRelease, Qt::Key_Space);
    QVERIFY(form.wifi->isChecked());
    QVERIFY(changed.wait(animationTime));
    QCOMPARE(form.wifi->getValue(), QVariant(true));

    // held before it came here
    QVERIFY(sendKey(form.wifi, QEvent::KeyPress, Qt::Key_Space, true));
    sendKey(form.wifi, QEvent::KeyRelease, Qt::Key_Space);
    QVERIFY(form.wifi->isChecked());

    sendKey(form.wifi, QEvent::KeyPress, Qt::Key_Space);
    QVERIFY(sendKey(form.wifi, QEvent::KeyPress, Qt::Key_Escape));
    sendKey(form.wifi, QEvent::KeyRelease, Qt::Key_Space);
    QVERIFY(form.wifi->isChecked());
}

void TestFormKeys::flipASwitchOnceWhileItSlides()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    QSignalSpy changed(form.wifi, &OlvSwitch::changed);
    QTest::keyClick(form.wifi, Qt::Key_Space);
    QTest::keyClick(form.wifi, Qt::Key_Space); // before the first step
    QVERIFY(changed.wait(animationTime));
    QTest::qWait(animationTime);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(form.wifi->getValue(), QVariant(true));
}

void TestFormKeys::leaveEnterToTheForm()
{
    NotingForm form;
    new OlvFormSupport(&form);
    for (QWidget *widget : { static_cast<QWidget *>(form.wifi), static_cast<QWidget *>(form.volume),
                             static_cast<QWidget *>(form.name->lineEdit()) }) {
        form.keys.clear();
        QTest::keyClick(widget, Qt::Key_Return);
        QCOMPARE(form.keys, QVector<int>{ Qt::Key_Return });
    }
}

void TestFormKeys::pressGlyphsOutsideDialogs()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    const QSignalSpy clicked(form.star, &QPushButton::clicked);
    QTest::keyClick(form.star, Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(sendKey(form.star, QEvent::KeyPress, Qt::Key_Return, true));
    QCOMPARE(clicked.count(), 1);
    QTest::keyClick(form.star, Qt::Key_Space);
    QCOMPARE(clicked.count(), 2);

    QDialog dialog;
    auto *star = new OlvSimpleIconButton(QStringLiteral("*"), QFont(), &dialog);
    new OlvFormSupport(&dialog);
    const QSignalSpy inDialog(star, &QPushButton::clicked);
    dialog.show();
    QTest::keyClick(star, Qt::Key_Return);
    QCOMPARE(inDialog.count(), 1);

    QWidget window;
    auto *bar = new OlvControlBar({}, &window);
    new OlvFormSupport(&window);
    auto *button = bar->findChild<QPushButton *>();
    const QSignalSpy inBar(button, &QPushButton::clicked);
    QTest::keyClick(button, Qt::Key_Enter);
    QCOMPARE(inBar.count(), 1);
}

void TestFormKeys::comeBeforeTheDefaultButton()
{
    QDialog dialog;
    auto *ok = new QPushButton(QStringLiteral("OK"), &dialog);
    ok->setDefault(true);
    auto *save = new OlvButton(QStringLiteral("Save"), &dialog);
    auto *wifi = new OlvSwitch(&dialog);
    auto *name = new OlvLineEdit(&dialog);
    new OlvFormSupport(&dialog);
    dialog.show();
    const QSignalSpy accepted(ok, &QPushButton::clicked);
    const QSignalSpy clicked(save, &OlvButton::clicked);
    QTest::keyClick(save, Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(accepted.count(), 0);
    QTest::keyClick(wifi, Qt::Key_Return);
    QCOMPARE(accepted.count(), 1);
    QTest::keyClick(name->lineEdit(), Qt::Key_Return);
    QCOMPARE(accepted.count(), 2);
    QTest::keyClick(save, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void TestFormKeys::moveASlider_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("Right") << Qt::Key_Right << 40 << 41;
    QTest::newRow("Left") << Qt::Key_Left << 40 << 39;
    QTest::newRow("Up") << Qt::Key_Up << 40 << 41;
    QTest::newRow("Down") << Qt::Key_Down << 40 << 39;
    QTest::newRow("Page Up") << Qt::Key_PageUp << 40 << 50;
    QTest::newRow("Page Down") << Qt::Key_PageDown << 40 << 30;
    QTest::newRow("Home") << Qt::Key_Home << 40 << 0;
    QTest::newRow("End") << Qt::Key_End << 40 << 100;
    QTest::newRow("Right at the end") << Qt::Key_Right << 100 << 100;
    QTest::newRow("Left at the start") << Qt::Key_Left << 0 << 0;
    QTest::newRow("Page Up near the end") << Qt::Key_PageUp << 95 << 100;
    QTest::newRow("Page Down near the start") << Qt::Key_PageDown << 5 << 0;
    QTest::newRow("from beyond the end") << Qt::Key_Left << 1000 << 99;
    QTest::newRow("from before the start") << Qt::Key_Right << -1000 << 1;
}

void TestFormKeys::moveASlider()
{
    QFETCH(Qt::Key, key);
    QFETCH(int, from);
    QFETCH(int, to);
    NotingForm form;
    new OlvFormSupport(&form);
    form.volume->resize(230, 30); // a pixel for each two percent
    form.volume->setValue(from);
    QVERIFY(sendKey(form.volume, QEvent::KeyPress, key));
    QCOMPARE(form.volume->getValue(), QVariant(to));
    QVERIFY(form.keys.isEmpty());
    if (to == from) {
        return; // nothing has moved
    }
    OlvSlider other;
    other.resize(230, 30);
    other.setSliderPosition(to);
    const auto placeOfKnob = [](const OlvSlider &slider) {
        return reinterpret_cast<SliderRound *>(slider.property("SliderRound").toULongLong())->pos();
    };
    QCOMPARE(placeOfKnob(*form.volume), placeOfKnob(other));
}

void TestFormKeys::goOnToTheForm_data()
{
    QTest::addColumn<Qt::Key>("key");
    for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_F1, Qt::Key_A, Qt::Key_Delete }) {
        QTest::newRow(qPrintable(QKeySequence(key).toString())) << key;
    }
}

void TestFormKeys::goOnToTheForm()
{
    QFETCH(Qt::Key, key);
    NotingForm form;
    new OlvFormSupport(&form);
    for (QWidget *widget : { static_cast<QWidget *>(form.save), static_cast<QWidget *>(form.mail),
                             static_cast<QWidget *>(form.star), static_cast<QWidget *>(form.wifi),
                             static_cast<QWidget *>(form.volume) }) {
        form.keys.clear();
        QTest::keyClick(widget, key);
        QCOMPARE(form.keys, QVector<int>{ key });
    }
}

void TestFormKeys::doNothingWithoutTheFeature()
{
    NotingForm form;
    new OlvFormSupport(&form, OlvFormSupport::NaturalSizes);
    form.save->setFocusPolicy(Qt::StrongFocus);
    const QSignalSpy clicked(form.save, &OlvButton::clicked);
    QTest::keyClick(form.save, Qt::Key_Space);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(form.keys, QVector<int>{ Qt::Key_Space });
    QVERIFY(!form.name->focusProxy());
    QCOMPARE(form.wifi->focusPolicy(), Qt::NoFocus);
}

void TestFormKeys::doNothingToADisabledWidget()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    const QSignalSpy clicked(form.save, &OlvButton::clicked);
    form.setEnabled(false);
    sendKey(form.save, QEvent::KeyPress, Qt::Key_Space);
    sendKey(form.save, QEvent::KeyRelease, Qt::Key_Space);
    sendKey(form.save, QEvent::KeyPress, Qt::Key_Return);
    sendKey(form.volume, QEvent::KeyPress, Qt::Key_End);
    sendKey(form.wifi, QEvent::KeyPress, Qt::Key_Space);
    sendKey(form.wifi, QEvent::KeyRelease, Qt::Key_Space);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(form.volume->getValue(), QVariant(0));
    QVERIFY(!form.wifi->isChecked());
}

void TestFormKeys::leaveKeysToFiltersOfTheApplication()
{
    struct Blocker : public QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            return event->type() == QEvent::KeyPress;
        }
    } blocker;
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    form.save->installEventFilter(&blocker);
    form.hide();
    form.show(); // the support looks at its members again
    const QSignalSpy clicked(form.save, &OlvButton::clicked);
    QTest::keyClick(form.save, Qt::Key_Space);
    QTest::keyClick(form.save, Qt::Key_Return);
    QCOMPARE(clicked.count(), 0);
}

ADD_TEST(TestFormKeys, QApplication)
#include "tst_formkeys.moc"
