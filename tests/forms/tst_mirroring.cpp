// SPDX-License-Identifier: MIT
// Widgets that are laid out from the right to the left: places, the mouse and the keyboard.
#include "deferred.h"
#include "mirrored.h"
#include "sizedlineedit.h"
#include "sizedswitch.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <OlvFormSupport>

#include <QSlider>
#include <QTest>

namespace {

constexpr Qt::LayoutDirection directions[] = { Qt::LeftToRight, Qt::RightToLeft };

/** A shown window with one widget, in either direction, under a support. */
template <typename Widget> class Stage : public QWidget
{
public:
    explicit Stage(Qt::LayoutDirection direction, QSize size = QSize(200, 30))
        : widget(new Widget(this))
        , support(new OlvFormSupport(this))
    {
        setLayoutDirection(direction);
        resize(400, 100);
        widget->setGeometry(QRect(QPoint(10, 10), size));
        show();
    }

    /** Where a part stands, counted from the side that the widget begins at. */
    int placeOf(const QWidget *part) const
    {
        return layoutDirection() == Qt::LeftToRight ? part->x()
                                                    : widget->width() - part->width() - part->x();
    }

    Widget *const widget;
    OlvFormSupport *const support;
};

/** A pointer that stands @p x pixels from the side that the widget begins at. */
QPoint pointAt(const QWidget *widget, int x)
{
    const bool isMirrored = widget->layoutDirection() == Qt::RightToLeft;
    return widget->mapTo(widget->window(), QPoint(isMirrored ? widget->width() - x : x, 12));
}

} // namespace

class TestMirroring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        runDeferred();
    }
    void dragsASliderAsTheOtherDirectionDoes_data();
    void dragsASliderAsTheOtherDirectionDoes();
    void putsTheKnobToItsValue();
    void keepsTheKnobAtItsValueWhenResized();
    void keepsTheKnobAtItsValueWhenResizedInADrag();
    void movesASliderWithTheKeysOfQSlider();
    void slidesASwitchAsTheOtherDirectionDoes();
    void keepsASwitchAtItsEndWhenResized();
    void keepsASwitchOnItsWayWhenResized();
    void placesThePartsOfALineEdit_data();
    void placesThePartsOfALineEdit();
    void letsThePasswordBeShown();
    void followsTheDirectionDuringADrag();
};

void TestMirroring::dragsASliderAsTheOtherDirectionDoes_data()
{
    QTest::addColumn<int>("width");
    for (const int width : { 200, 131, 40, 31, 30, 20 }) {
        QTest::addRow("%d wide", width) << width;
    }
}

void TestMirroring::dragsASliderAsTheOtherDirectionDoes()
{
    QFETCH(int, width);
    QVector<QPair<int, int>> seen[2]; // values, and places of the knob
    for (const Qt::LayoutDirection direction : directions) {
        Stage<OlvSlider> stage(direction, QSize(width, 30));
        QWindow *window = stage.windowHandle();
        QWidget *knob = knobOf(*stage.widget);
        const auto note = [&] {
            seen[direction].append({ stage.widget->getValue().toInt(), stage.placeOf(knob) });
        };
        note();
        for (const auto button : { Qt::LeftButton, Qt::RightButton }) {
            QTest::mousePress(window, button, {}, pointAt(stage.widget, stage.placeOf(knob) + 7));
            note();
            for (const int x : { 14, 15, 20, 57, 58, 59, 90, 150, 385, 100, -100, 60 }) {
                QTest::mouseMove(window, pointAt(stage.widget, x));
                note();
            }
            QTest::mouseRelease(window, button, {}, pointAt(stage.widget, 60));
            note();
        }
    }
    QCOMPARE(seen[Qt::RightToLeft], seen[Qt::LeftToRight]);
    QVERIFY(width <= 30 || seen[0].contains({ 100, width - 30 }));
}

void TestMirroring::putsTheKnobToItsValue()
{
    for (const int value : { 0, 1, 37, 99, 100 }) {
        Stage<OlvSlider> ltr(Qt::LeftToRight);
        Stage<OlvSlider> rtl(Qt::RightToLeft);
        ltr.widget->setSliderPosition(value);
        rtl.widget->setSliderPosition(value);
        QCOMPARE(rtl.widget->getValue(), QVariant(value));
        QCOMPARE(knobOf(*rtl.widget)->geometry(),
                 mirrored(knobOf(*ltr.widget)->geometry(), rtl.widget));
    }
    Stage<OlvSlider> stage(Qt::RightToLeft);
    stage.widget->setValue(50); // which leaves the knob in the other direction, too
    QCOMPARE(knobOf(*stage.widget)->x(), 175);
}

void TestMirroring::keepsTheKnobAtItsValueWhenResized()
{
    Stage<OlvSlider> stage(Qt::RightToLeft);
    QWidget *knob = knobOf(*stage.widget);
    stage.widget->resize(300, 30);
    QCOMPARE(stage.placeOf(knob), 5); // it has not been moved
    QWindow *window = stage.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, knob->mapTo(&stage, QPoint(10, 10)));
    QTest::mouseMove(window, pointAt(stage.widget, 140)); // 135 of 270 pixels
    QTest::mouseRelease(window, Qt::LeftButton, {}, pointAt(stage.widget, 140));
    const int value = stage.widget->getValue().toInt();
    QVERIFY(value > 40 && value < 60);
    for (const int width : { 330, 230, 130 }) {
        stage.widget->resize(width, 30);
        QCOMPARE(stage.placeOf(knob), (value * (width - 30) + 99) / 100 + 5);
        QCOMPARE(stage.widget->getValue(), QVariant(value));
    }
}

void TestMirroring::keepsTheKnobAtItsValueWhenResizedInADrag()
{
    Stage<OlvSlider> stage(Qt::RightToLeft);
    QWidget *knob = knobOf(*stage.widget);
    QWindow *window = stage.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, knob->mapTo(&stage, QPoint(10, 10)));
    QTest::mouseMove(window, pointAt(stage.widget, 100));
    const int value = stage.widget->getValue().toInt();
    stage.widget->resize(330, 30);
    QCOMPARE(stage.placeOf(knob), value * 3);
    QTest::mouseMove(window, pointAt(stage.widget, 2000));
    QCOMPARE(stage.widget->getValue(), QVariant(100));
    QCOMPARE(knob->x(), 0);
    QTest::mouseRelease(window, Qt::LeftButton, {}, pointAt(stage.widget, 2000));
    QCOMPARE(knob->geometry(), QRect(5, 5, 20, 20));
}

void TestMirroring::movesASliderWithTheKeysOfQSlider()
{
    for (const Qt::LayoutDirection direction : directions) {
        Stage<OlvSlider> stage(direction);
        QSlider model(Qt::Horizontal, &stage);
        model.setRange(0, 100);
        model.setValue(50);
        stage.widget->setSliderPosition(50);
        for (const Qt::Key key : { Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                   Qt::Key_PageDown, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Left,
                                   Qt::Key_End, Qt::Key_Left, Qt::Key_Home, Qt::Key_Right }) {
            QTest::keyClick(&model, key);
            QTest::keyClick(stage.widget, key);
            QCOMPARE(stage.widget->getValue().toInt(), model.value());
        }
    }
}

void TestMirroring::slidesASwitchAsTheOtherDirectionDoes()
{
    QVector<int> places[2];
    for (const Qt::LayoutDirection direction : directions) {
        Stage<OlvSwitch> stage(direction, QSize(93, 21));
        const QWidget *knob = knobOf(*stage.widget);
        const auto note = [&] {
            places[direction].append(stage.placeOf(knob));
            QCOMPARE(knob->y(), 0);
        };
        note();
        for (const bool on : { true, false }) {
            QTest::mouseClick(stage.windowHandle(), Qt::LeftButton, {},
                              stage.widget->mapTo(&stage, QPoint(20, 10)));
            for (int step = 0; step < 5; ++step) {
                tick(*stage.widget);
                note();
            }
            QCOMPARE(stage.widget->getValue(), QVariant(on));
        }
        stage.widget->setChecked(true);
        note();
        QCOMPARE(knob->x(), direction == Qt::LeftToRight ? 72 : 0);
    }
    QCOMPARE(places[Qt::RightToLeft], places[Qt::LeftToRight]);
    QCOMPARE(places[0].mid(0, 6), QVector<int>({ 0, 14, 28, 42, 56, 72 }));
}

void TestMirroring::keepsASwitchAtItsEndWhenResized()
{
    Stage<OlvSwitch> stage(Qt::RightToLeft, QSize(60, 20));
    const QWidget *knob = knobOf(*stage.widget);
    for (const bool on : { false, true }) {
        stage.widget->setValue(on);
        if (on) {
            runAnimation(*stage.widget);
        }
        for (const QSize size : { QSize(90, 30), QSize(40, 20), QSize(60, 20) }) {
            stage.widget->resize(size);
            QCOMPARE(knob->width(), size.height());
            QCOMPARE(stage.placeOf(knob), on ? size.width() - size.height() : 0);
            QCOMPARE(knob->y(), 0);
        }
    }
}

void TestMirroring::keepsASwitchOnItsWayWhenResized()
{
    Stage<OlvSwitch> stage(Qt::RightToLeft, QSize(120, 20));
    const QWidget *knob = knobOf(*stage.widget);
    for (const bool on : { true, false }) {
        stage.widget->setValue(on);
        tick(*stage.widget);
        QCOMPARE(stage.placeOf(knob), on ? 20 : 80);
        stage.widget->resize(220, 20);
        QCOMPARE(stage.placeOf(knob), on ? 40 : 160);
        QCOMPARE(knob->y(), 0);
        tick(*stage.widget);
        QCOMPARE(stage.placeOf(knob), on ? 80 : 120);
        for (int step = 2; step < 5; ++step) {
            tick(*stage.widget);
        }
        QCOMPARE(stage.placeOf(knob), on ? 200 : 0);
        stage.widget->resize(120, 20);
    }
}

void TestMirroring::placesThePartsOfALineEdit_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("password");
    for (const QSize size : { QSize(200, 30), QSize(201, 25), QSize(50, 30), QSize(20, 30) }) {
        for (const bool password : { false, true }) {
            QTest::addRow("%d by %d%s", size.width(), size.height(), password ? ", password" : "")
                << size << password;
        }
    }
}

void TestMirroring::placesThePartsOfALineEdit()
{
    QFETCH(QSize, size);
    QFETCH(bool, password);
    Stage<OlvLineEdit> ltr(Qt::LeftToRight, size);
    Stage<OlvLineEdit> rtl(Qt::RightToLeft, size);
    for (OlvLineEdit *edit : { ltr.widget, rtl.widget }) {
        edit->setIcon(QStringLiteral("WW"));
        edit->setPassWord(password);
    }
    const auto compare = [&] {
        QCOMPARE(editorOf(*rtl.widget)->geometry(),
                 mirrored(editorOf(*ltr.widget)->geometry(), rtl.widget));
        QCOMPARE(buttonOf(*rtl.widget)->geometry(),
                 mirrored(buttonOf(*ltr.widget)->geometry(), rtl.widget));
        QCOMPARE(rtl.widget->property("IconWidth"), ltr.widget->property("IconWidth"));
    };
    compare();
    for (OlvLineEdit *edit : { ltr.widget, rtl.widget }) {
        edit->setIcon(QString());
        edit->resize(size + QSize(31, 4));
    }
    compare();
}

void TestMirroring::letsThePasswordBeShown()
{
    Stage<OlvLineEdit> stage(Qt::RightToLeft);
    QVERIFY(QTest::qWaitForWindowActive(&stage));
    QLineEdit *text = editorOf(*stage.widget);
    stage.widget->setPassWord(true);
    stage.widget->setText(QStringLiteral("secret"));
    const auto click = [&](int x) {
        QTest::mouseClick(stage.windowHandle(), Qt::LeftButton, {},
                          stage.widget->mapTo(&stage, QPoint(x, 15)));
    };
    click(15); // the button, at the left
    QCOMPARE(text->echoMode(), QLineEdit::Normal);
    click(15);
    QCOMPARE(text->echoMode(), QLineEdit::Password);
    text->clearFocus();
    click(190); // the column of the glyph
    QVERIFY(text->hasFocus());
}

void TestMirroring::followsTheDirectionDuringADrag()
{
    Stage<OlvSlider> stage(Qt::LeftToRight);
    QWidget *knob = knobOf(*stage.widget);
    QWindow *window = stage.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, knob->mapTo(&stage, QPoint(4, 10)));
    QTest::mouseMove(window, pointAt(stage.widget, 60));
    stage.setLayoutDirection(Qt::RightToLeft);
    QTest::mouseMove(window, pointAt(stage.widget, 60));
    Stage<OlvSlider> other(Qt::RightToLeft);
    QTest::mousePress(other.windowHandle(), Qt::LeftButton, {}, pointAt(other.widget, 21));
    QTest::mouseMove(other.windowHandle(), pointAt(other.widget, 60));
    QCOMPARE(stage.widget->getValue(), other.widget->getValue());
    QCOMPARE(knob->geometry(), knobOf(*other.widget)->geometry());
}

ADD_TEST(TestMirroring, QApplication)
#include "tst_mirroring.moc"
