// SPDX-License-Identifier: MIT
// Which widgets are mirrored and when, and what is left of that.
#include "deferred.h"
#include "mirrored.h"
#include "onevent.h"
#include "pixels.h"
#include "sizedlineedit.h"
#include "sizedswitch.h"
#include "sliderknob.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QHash>
#include <QTest>

#include <algorithm>

class TestMirroredMembers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        runDeferred();
    }
    void followsTheDirection();
    void followsWidgetsThatComeAndGo();
    void leavesNothingBehind_data();
    void leavesNothingBehind();
    void isNotWithoutTheFeature();
    void standsADeletionWhileItMovesParts_data();
    void standsADeletionWhileItMovesParts();
};

void TestMirroredMembers::followsTheDirection()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    form.volume->setSliderPosition(20);
    form.wifi->setChecked(true);
    const QWidgetList parts{ knobOf(*form.volume), knobOf(*form.wifi), editorOf(*form.password),
                             buttonOf(*form.password) };
    QVector<QRect> places;
    for (const QWidget *part : parts) {
        places.append(part->geometry());
    }
    for (int i = 0; i < 2; ++i) {
        form.setLayoutDirection(Qt::RightToLeft);
        for (int part = 0; part < parts.size(); ++part) {
            const QWidget *around = parts.at(part)->parentWidget();
            QCOMPARE(parts.at(part)->geometry(), mirrored(places.at(part), around));
        }
        form.setLayoutDirection(Qt::LeftToRight);
        for (int part = 0; part < parts.size(); ++part) {
            QCOMPARE(parts.at(part)->geometry(), places.at(part));
        }
    }
    form.volume->setLayoutDirection(Qt::RightToLeft); // that one alone
    QCOMPARE(knobOf(*form.volume)->geometry(), mirrored(places.at(0), form.volume));
    QCOMPARE(knobOf(*form.wifi)->geometry(), places.at(1));
}

void TestMirroredMembers::followsWidgetsThatComeAndGo()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    new OlvFormSupport(&window);
    window.show();
    auto *slider = new OlvSlider(&window);
    QWidget *knob = knobOf(*slider);
    QCOMPARE(knob->x(), 5);
    slider->show();
    QCOMPARE(knob->x(), 175);
    QWidget other;
    other.setLayoutDirection(Qt::RightToLeft);
    slider->setParent(&other);
    QCOMPARE(knob->x(), 5);
    slider->setParent(&window);
    QCOMPARE(knob->x(), 175);
    slider->setParent(nullptr);
    QCOMPARE(knob->x(), 5);
    delete slider;
}

void TestMirroredMembers::leavesNothingBehind_data()
{
    QTest::addColumn<bool>("deletes");
    QTest::addColumn<bool>("isShown");
    for (const bool isShown : { false, true }) {
        QTest::addRow("deleted, %s", isShown ? "shown" : "hidden") << true << isShown;
        QTest::addRow("switched off, %s", isShown ? "shown" : "hidden") << false << isShown;
    }
}

void TestMirroredMembers::leavesNothingBehind()
{
    QFETCH(bool, deletes);
    QFETCH(bool, isShown);
    const auto geometries = [](const WidgetForm &form) {
        QVector<QRect> all;
        const auto parts = form.findChildren<QWidget *>();
        for (const QWidget *part : parts) {
            all.append(part->geometry());
        }
        return all;
    };
    WidgetForm form;
    form.setLayoutDirection(Qt::RightToLeft);
    form.resize(300, 400);
    form.setVisible(isShown);
    form.wifi->setValue(true);
    tick(*form.wifi);                                                  // on its way
    const QImage picture = isShown ? form.grab().toImage() : QImage(); // which lays out
    const QVector<QRect> before = geometries(form);
    const auto *support = new OlvFormSupport(&form, OlvFormSupport::Mirroring);
    QVERIFY(geometries(form) != before);
    if (deletes) {
        delete support;
    } else {
        const_cast<OlvFormSupport *>(support)->setFeatures({});
    }
    QCOMPARE(geometries(form), before);
    if (isShown) {
        COMPARE_PICTURES(form.grab().toImage(), picture);
    }
}

void TestMirroredMembers::isNotWithoutTheFeature()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    OlvSlider slider(&window);
    SizedLineEdit edit;
    edit.setParent(&window);
    OlvFormSupport::Features features = OlvFormSupport::AllFeatures;
    features.setFlag(OlvFormSupport::Mirroring, false);
    new OlvFormSupport(&window, features);
    window.show();
    QCOMPARE(knobOf(slider)->x(), 5);
    QCOMPARE(editorOf(edit)->x(), 32);
    slider.setSliderPosition(50);
    QTest::keyClick(&slider, Qt::Key_Right);
    QCOMPARE(slider.getValue(), QVariant(51));
}

void TestMirroredMembers::standsADeletionWhileItMovesParts_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("victim");
    // not the part that is moved, which Qt does not stand
    for (const char *part : { "knob", "disc", "text", "button" }) {
        for (const char *victim : { "support", "others" }) {
            QTest::addRow("%s moved, %s deleted", part, victim)
                << QString::fromLatin1(part) << QString::fromLatin1(victim);
        }
    }
}

void TestMirroredMembers::standsADeletionWhileItMovesParts()
{
    QFETCH(QString, part);
    QFETCH(QString, victim);
    WidgetForm form;
    form.setLayoutDirection(Qt::RightToLeft);
    auto *support = new OlvFormSupport(&form, OlvFormSupport::Keyboard);
    form.show();
    const QHash<QString, QWidget *> parts{ { QStringLiteral("knob"), knobOf(*form.volume) },
                                           { QStringLiteral("disc"), knobOf(*form.wifi) },
                                           { QStringLiteral("text"), editorOf(*form.password) },
                                           { QStringLiteral("button"), buttonOf(*form.password) } };
    QWidget *moved = parts.value(part);
    QVector<QPointer<QObject>> victims;
    if (victim == QLatin1String("support")) {
        victims.append(support);
    } else {
        const auto all = form.findChildren<QWidget *>();
        for (QWidget *one : all) {
            if (one != moved && one != moved->parentWidget()) {
                victims.append(one);
            }
        }
    }
    OnEvent deletion(moved, QEvent::Move, [victims] {
        for (const QPointer<QObject> &one : victims) {
            delete one;
        }
    });
    support->setFeatures(OlvFormSupport::AllFeatures);
    QVERIFY(std::all_of(victims.cbegin(), victims.cend(),
                        [](const QPointer<QObject> &one) { return !one; }));
    QVERIFY(!form.grab().isNull());
}

ADD_TEST(TestMirroredMembers, QApplication)
#include "tst_mirroredmembers.moc"
