// SPDX-License-Identifier: MIT
#include "paintwatch.h"
#include "pixels.h"
#include "ringaround.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QTest>

class TestFocusRingPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setCursorFlashTime(0); // the caret of a text stays
    }
    void isTheSameAsADrawing_data();
    void isTheSameAsADrawing();
    void isSharpOnAFractionalScale();
    void isSeenInARotatedForm();
    void hasTheColorOfItsWidget();
    void isLeftAloneByWidgetsThatItHasLeft();
};

void TestFocusRingPainting::isTheSameAsADrawing_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QString>("widget");
    for (const char *widget :
         { "save", "round save", "wifi", "volume", "mail", "star", "name", "shortcut" }) {
        QTest::addRow("%s at 1", widget) << 1.0 << QString::fromLatin1(widget);
    }
    // the narrow corners of edits are flattened otherwise within a scaled drawing
    for (const char *widget : { "save", "round save", "wifi", "volume", "mail", "star" }) {
        QTest::addRow("%s at 2", widget) << 2.0 << QString::fromLatin1(widget);
    }
}

void TestFocusRingPainting::isTheSameAsADrawing()
{
    QFETCH(qreal, ratio);
    QFETCH(QString, widget);
    WidgetForm form;
    auto *support = new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    const QHash<QString, QPair<QWidget *, int>> all{
        { QStringLiteral("save"), { form.save, form.save->height() / 5 } },
        { QStringLiteral("wifi"), { form.wifi, form.wifi->height() / 2 } },
        { QStringLiteral("volume"), { form.volume, form.volume->height() / 2 } },
        { QStringLiteral("mail"), { form.mail, 10 } },
        { QStringLiteral("round save"), { form.save, form.save->height() / 2 } },
        { QStringLiteral("star"), { form.star, 4 } },
        { QStringLiteral("name"), { form.name, 3 } },
        { QStringLiteral("shortcut"), { form.shortcut, 3 } },
    };
    const auto [framed, radius] = all.value(widget);
    if (widget == QLatin1String("round save")) {
        form.save->setOlvStyle(QStringLiteral("primary"), QStringLiteral("round"));
    }
    tabTo(framed);
    QVERIFY(hasRing(form));
    const QImage actual = pictureOfWindow(form, ratio);
    support->setFeatures(support->features() & ~OlvFormSupport::FocusRing);
    QVERIFY(!hasRing(form));
    tabTo(framed);
    QVERIFY(!hasRing(form));
    const QImage without = pictureOfWindow(form, ratio);
    COMPARE_PICTURES(actual,
                     withRing(without, QRectF(framed->geometry()), radius,
                              form.palette().color(QPalette::Highlight)));
}

/** Each edge is as many whole pixels of the screen thick, wherever it begins between them. */
void TestFocusRingPainting::isSharpOnAFractionalScale()
{
    for (const qreal ratio : { 1.25, 1.5, 1.75 }) {
        WidgetForm form;
        new OlvFormSupport(&form);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QWidget *const kinds[] = { form.save, form.wifi, form.volume,  form.mail,
                                   form.star, form.name, form.shortcut };
        for (QWidget *widget : kinds) {
            tabTo(widget);
            QVERIFY(hasRing(form));
            const QImage with = pictureOfWindow(form, ratio);
            ringIn(form)->hide();
            const QImage without = pictureOfWindow(form, ratio);
            const QPoint middle = (QPointF(widget->geometry().center()) * ratio).toPoint();
            const QRgb color = form.palette().color(QPalette::Highlight).rgb();
            int colored[] = { 0, 0 };
            int others = 0;
            const auto count = [&](int x, int y, int &edges) {
                const bool isDrawn = with.pixel(x, y) != without.pixel(x, y);
                edges += isDrawn && with.pixel(x, y) == color ? 1 : 0;
                others += isDrawn && with.pixel(x, y) != color ? 1 : 0;
            };
            for (int y = 0; y < with.height(); ++y) {
                count(middle.x(), y, colored[0]);
            }
            for (int x = 0; x < with.width(); ++x) {
                count(x, middle.y(), colored[1]);
            }
            const int both = 2 * qRound(ringThickness * ratio);
            QCOMPARE(colored[0], both); // above and below
            if (widget == form.wifi || widget == form.volume) {
                // the sides are round there, with a smoothed pixel for each
                QVERIFY(colored[1] >= both - 2 && colored[1] + others <= both + 2);
            } else {
                QCOMPARE(colored[1], both);
                QCOMPARE(others, 0);
            }
        }
    }
}

/** There the ring has no scale to go by, and each edge is one pixel thick. */
void TestFocusRingPainting::isSeenInARotatedForm()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    tabTo(form.save);
    QImage picture(form.height(), form.width(), QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.translate(form.height(), 0);
    painter.rotate(90);
    form.render(&painter);
    painter.end();
    const QRgb color = form.palette().color(QPalette::Highlight).rgb();
    const int middle = form.save->geometry().center().x();
    int colored = 0;
    for (int x = 0; x < picture.width(); ++x) {
        colored += picture.pixel(x, middle) == color ? 1 : 0;
    }
    QCOMPARE(colored, 2);
}

void TestFocusRingPainting::hasTheColorOfItsWidget()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    tabTo(form.save);
    QVERIFY(hasRing(form));
    QFocusFrame *ring = ringIn(form);
    PaintWatch watch(*ring);
    ring->repaint();
    QVERIFY(!watch.take().isEmpty());
    QVERIFY(watch.take().isEmpty());
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::magenta);
    form.save->setPalette(palette);
    QVERIFY(watch.takeWhole() > 0);
    const QPoint top(form.save->width() / 2 + ringMargin, 1);
    const QPoint place = form.save->pos() - QPoint(ringMargin, ringMargin) + top;
    QCOMPARE(pictureOfWindow(form, 1.0).pixelColor(place), QColor(Qt::magenta));
}

/** The ring is neither painted again nor raised when one of them moves. */
void TestFocusRingPainting::isLeftAloneByWidgetsThatItHasLeft()
{
    QWidget window;
    window.resize(300, 200);
    OlvButton first(QStringLiteral("First"), &window);
    first.setGeometry(10, 10, 80, 30);
    OlvButton second(QStringLiteral("Second"), &window);
    second.setGeometry(10, 100, 80, 30);
    new OlvFormSupport(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    tabTo(&first);
    tabTo(&second);
    QVERIFY(hasRing(window));
    QWidget above(&window);
    above.setGeometry(second.geometry().adjusted(-20, -20, 20, 20));
    above.show();
    const auto isRaised = [&] {
        const QObjectList &all = window.children();
        return all.indexOf(ringIn(window)) > all.indexOf(&above);
    };
    QVERIFY(!isRaised());
    first.move(200, 10);
    QVERIFY(!isRaised());
    second.move(12, 102);
    QVERIFY(isRaised());
}

ADD_TEST(TestFocusRingPainting, QApplication)
#include "tst_focusringpainting.moc"
