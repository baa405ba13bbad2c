// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/olvwidgets_export.h>
#include <OlvWidgets/widget.h>

#include <QColor>

#include <memory>

/**
 * @file value.h
 * Switches and sliders.
 */

class OlvSlider;

/**
 * The knob of an OlvSlider: a white disc ringed in blue that the user drags along the track.
 *
 * @image html SliderRound.png
 *
 * The slider creates it, and an application moves it through the slider. At rest it is 20 by 20
 * pixels, 5 pixels in from its logical position; while any mouse button is held it is 30 by 30
 * about the same centre. Its logical x runs from 0 to maxX().
 *
 * @code
 * slider->setSliderPosition(40); // the knob moves there
 * @endcode
 */
class OLVWIDGETS_EXPORT SliderRound : public QWidget
{
public:
    /** What the library alone knows of a knob; not defined in any installed header. */
    class Private;

    /**
     * The knob of @p slider, which owns it. In a parent that is no OlvSlider it can be dragged all
     * the same, and sets no value.
     */
    explicit SliderRound(QWidget *slider);
    /** Leaves the slider without a knob, at the value that it has. */
    ~SliderRound() override;

    /** The largest logical x of a drag, in the slider's coordinates: its width less 30 pixels. */
    int maxX() const;
    /**
     * Sets the largest logical x. The knob stays where it is until the next drag, but for two: one
     * that OlvSlider::setSliderPosition() has moved, while no drag is under way, and one that is
     * mirrored (OlvFormSupport::Mirroring). Those move to the percentage that they stand for.
     */
    void setMaxX(int maxX);
    /**
     * Drags the knob to @p progress percent, within 0 to 100, as assistive programs do it: moves it
     * to where a drag by the mouse would give the same percentage, or to the next pixel on a track
     * with fewer pixels than percentages, and calls OlvSlider::setValue() once.
     */
    void dragTo(int progress);

protected:
    /** Has a release end the drag also when the knob was disabled during it; else as any widget. */
    bool event(QEvent *event) override;
    /** Draws the disc: white, with a ring 2 pixels wide. */
    void paintEvent(QPaintEvent *event) override;
    /** Any button: grows the knob about its centre and starts a drag. */
    void mousePressEvent(QMouseEvent *event) override;
    /**
     * During a drag: moves the knob with the pointer, within 0 and maxX(), and hands the percentage
     * to OlvSlider::setValue() whenever it differs from the one handed over last.
     */
    void mouseMoveEvent(QMouseEvent *event) override;
    /** Any button: shrinks the knob about its centre and ends the drag. */
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    friend class OlvSlider;
    void follow(int progress);
    void placeAt(int progress);

    const std::unique_ptr<Private> d;
};

/**
 * A horizontal slider: a flat blue track with a round knob that the user drags along it.
 *
 * @image html OlvSlider.png
 *
 * The value is a percentage, an int from 0 to 100, kept in the dynamic property "progress" (int; 0
 * at first). It is 30 pixels high and starts 200 wide. The second dynamic property, "SliderRound"
 * (qulonglong), holds the address of the knob and is the library's own.
 *
 * Dragging changes the value silently, through setValue(), and emits nothing: read it with
 * getValue() when it is wanted, or map the slider to a model by an OlvValueDelegate, which stores
 * the value when a drag ends. A subclass follows the drag itself by overriding setValue().
 * setValue() in turn stores the value and leaves the knob where it is; setSliderPosition() moves
 * the knob as well.
 *
 * @code
 * auto *volume = new OlvSlider(this);
 * volume->resize(300, volume->height());
 * connect(okButton, &QPushButton::clicked, this,
 *         [=] { player->setVolume(volume->getValue().toInt()); });
 * @endcode
 *
 * A drag to the far left gives exactly 0, to the far right exactly 100; between them the percentage
 * is cut off towards 0. After a resize the knob keeps its place until the next drag brings it
 * within the track, unless setSliderPosition() has been called or the slider is mirrored
 * (OlvFormSupport::Mirroring): then it moves to the percentage that it was brought to last. A
 * slider exactly 30 pixels wide has room for 0 alone: it gives 0 until the pointer pulls to the
 * right, then 100. In a narrower one the end of the track lies left of its start: a drag jumps to
 * that end and gives 100, but for one still further to the left, which gives 0.
 *
 * Accessibility: a slider, called by its accessible name, else by a label whose buddy it is, with a
 * value from 0 to 100 in steps of 1. Setting that value is a drag to it: the knob moves to where a
 * drag would give the same percentage, or to the next pixel on a track with fewer pixels than
 * percentages, and setValue() is called once. The keyboard does not move it without a form
 * support (OlvFormSupport::Keyboard).
 */
class OLVWIDGETS_EXPORT OlvSlider : public OlvWidget
{
    Q_OBJECT

public:
    /** A slider at 0, 200 by 30 pixels, in @p parent, which owns it. */
    explicit OlvSlider(QWidget *parent = nullptr);

    /** The property "progress" as an int: 0 for what does not convert to one. */
    QVariant getValue() override;
    /**
     * Stores @p value in the property "progress", as it stands and unchecked. Neither moves the
     * knob nor repaints nor emits anything. The knob calls it for each new percentage of a drag.
     */
    void setValue(const QVariant &value) override;

    /**
     * Puts the slider to @p percent, bounded to 0 to 100, with its knob there: calls setValue()
     * once and emits nothing of its own. From then on the knob keeps to the last percentage that it
     * was set or dragged to when the slider is resized, so that a value may be set before a layout
     * gives the slider its size.
     */
    void setSliderPosition(int percent);

protected:
    /** Draws the track: one bar in one colour, whatever the value. */
    void paintEvent(QPaintEvent *event) override;
    /** Sets how far the knob may go, by SliderRound::setMaxX(); does not change the value. */
    void resizeEvent(QResizeEvent *event) override;
};

/**
 * The knob of an OlvSwitch: a disc that slides from one end of the track to the other.
 *
 * @image html SwitchRound.png
 *
 * The switch creates and moves it, and an application sets its place and its colour through the
 * switch.
 *
 * @code
 * wifi->setChecked(true); // the knob stands at the end
 * wifi->setColorRound(QColor(255, 193, 7));
 * @endcode
 */
class OLVWIDGETS_EXPORT SwitchRound : public QWidget
{
public:
    /** What the library alone knows of a knob; not defined in any installed header. */
    class Private;

    /** A white knob in @p parent, which owns it, with an inset of a tenth of its own height. */
    explicit SwitchRound(QWidget *parent = nullptr);
    /** Leaves the switch without a knob. */
    ~SwitchRound() override;

    /** The colour of the disc. */
    QColor color() const;
    /** Sets the colour of the disc; repaints nothing. */
    void setColor(const QColor &color);
    /** The margin between the knob's edge and the disc, in pixels. */
    int inset() const;
    /** Sets the margin between the knob's edge and the disc; repaints nothing. */
    void setInset(int inset);

protected:
    /** Draws the disc, as wide as the knob is high less the inset on both sides. */
    void paintEvent(QPaintEvent *event) override;

private:
    friend class OlvSwitch;

    const std::unique_ptr<Private> d;
};

/**
 * An on/off switch: a track whose colour shows the state, with a round knob that slides to the
 * other end when the user clicks it.
 *
 * @image html OlvSwitch.png
 *
 * The value is a bool. A click of any mouse button, or setValue(), starts an animation of five
 * steps 50 milliseconds apart: four move the knob a fifth of its travel each, the fifth brings it
 * to the end, flips the value and emits valueChanged() and then changed(), about 250 milliseconds
 * after the click. Until then the value is the old one; once the first step is done, clicks are
 * ignored until the last. A second start before the first step is not held back: the switch then
 * goes on to flip back and forth, so call setValue() once. setChecked() sets the switch at once,
 * and isChecked() tells what was chosen while the knob is still on its way.
 *
 * Its state lies in dynamic properties, which applications may read:
 *
 * | property     | type      | at first       | meaning                                           |
 * |--------------|-----------|----------------|---------------------------------------------------|
 * | "switch"     | bool      | false          | the value                                         |
 * | "moveCount"  | int       | 0              | the animation's step, 0 at rest                   |
 * | "moveWidth"  | double    |                | pixels of a step: (width - height) / 5            |
 * | "timerId"    | int       | not set        | the animation's timer                             |
 * | "interval"   | int       | 2              | not used                                          |
 * | "openColor"  | string    | "220,223,230"  | colour string of the track while it is off        |
 * | "closeColor" | string    | "19,206,102"   | colour string of the track while it is on         |
 * | "round"      | qulonglong |               | the address of the knob; the library's own        |
 *
 * The knob keeps its place when the switch is resized, until the next animation, unless
 * setChecked() has been called or the switch is mirrored (OlvFormSupport::Mirroring): then it stays
 * at its end. While a mirrored knob slides, it moves to where it would be by then in a switch of
 * the new width. Mouse releases, resizes and timer events are handled by listeners that consume
 * them: a subclass does not get its mouseReleaseEvent(), resizeEvent() and timerEvent().
 *
 * Accessibility: a check box, called by its accessible name, else by a label whose buddy it is. The
 * actions "Toggle" and "Press" both do what a click does, and nothing until the animation under way
 * has ended; the new checked state is reported when the animation has ended. The keyboard does not
 * switch it without a form support (OlvFormSupport::Keyboard).
 *
 * @code
 * auto *wifi = new OlvSwitch(this);
 * wifi->resize(50, 24);
 * wifi->setValue(true);
 * connect(wifi, &OlvSwitch::changed, radio, &Radio::setEnabled);
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvSwitch : public OlvWidget
{
    Q_OBJECT

public:
    /** A switch that is off, in @p parent, which owns it. */
    explicit OlvSwitch(QWidget *parent = nullptr);

    /** The property "switch": the old value while the animation runs. */
    QVariant getValue() override;
    /**
     * Starts the animation towards @p value as a bool; nothing when the switch stands so already.
     * At its end valueChanged() and then changed() are emitted.
     */
    void setValue(const QVariant &value) override;

    /** Whether the switch is on; while it slides, whether it will be. */
    bool isChecked() const;
    /**
     * Turns the switch on or off at once: its knob stands at the end, and an animation under way is
     * over. When "switch" has changed by it, valueChanged() and then changed() are emitted. From
     * then on the knob keeps to its end when the switch is resized, so that a switch may be set
     * before a layout gives it its size.
     */
    void setChecked(bool checked);

    /** Sets the colour of the track while the switch is off, without its alpha; repaints nothing.
     */
    void setColorOpen(QColor color);
    /** Sets the colour of the track while the switch is on, without its alpha; repaints nothing. */
    void setColorClose(QColor color);
    /** Sets the colour of the knob, and repaints the knob. */
    void setColorRound(QColor color);

Q_SIGNALS:
    /** The switch has come to stand on or off; emitted after valueChanged(). */
    void changed(bool);

protected:
    /** Draws the track in the colour of its state. */
    void paintEvent(QPaintEvent *event) override;

private:
    SwitchRound *knob() const;
    void fitKnob();
    void toggle();
    void step();
    void finish(bool on);
    void settle(bool on);
    void moveKnobToEnd(bool on);
};
