// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "keyboard.h"
#include "pixels.h"
#include "ringaround.h"
#include "serverform.h"
#include "testprogram.h"

#include <QApplication>
#include <QGridLayout>
#include <QScreen>

#include <functional>
#include <memory>

namespace {

constexpr qreal opacity = 0.4;
constexpr int leastSide = 20;

/** What the server shows of @p widget, and of so many pixels around it. */
QImage shown(const QWidget &widget, int around = 0)
{
    const QRect area = QRect(widget.mapToGlobal(QPoint()), widget.size())
                           .adjusted(-around, -around, around, around);
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

/** Whether the server shows the same for a while, so that nothing more is painted. */
bool isStill(const QWidget &widget)
{
    const QImage before = shown(widget);
    for (int i = 0; i < 6; ++i) {
        QTest::qWait(50);
        if (shown(widget) != before) {
            return false;
        }
    }
    return true;
}

QVector<QPointer<QObject>> &focusUpdates()
{
    static QVector<QPointer<QObject>> objects;
    return objects;
}

void noteFocus(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::Focus) {
        focusUpdates().append(event->object());
    }
}

} // namespace

/** What the server shows of a form, and what an assistive program is told of it. */
class TestFormLookOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void init();
    void cleanup();
    void ringIsTheSameAsADrawing_data();
    void ringIsTheSameAsADrawing();
    void everyStopHasARing();
    void aClickShowsNoRing();
    void disabledWidgetsAreTheEnabledOnesFaded();
    void everyWidgetIsLargeEnoughToBeHit();
    void assistiveProgramsHearOfTheFocus();

private:
    std::unique_ptr<Keyboard> m_keys;
    std::unique_ptr<ServerForm> m_dialog;
};

void TestFormLookOnServer::initTestCase_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void TestFormLookOnServer::initTestCase()
{
    QApplication::setCursorFlashTime(0); // or a picture depends on when it is taken
}

void TestFormLookOnServer::init()
{
    QFETCH_GLOBAL(Qt::LayoutDirection, direction);
    QGuiApplication::setLayoutDirection(direction);
    m_keys = std::make_unique<Keyboard>();
    QVERIFY(m_keys->isValid());
    RealInput().moveTo({ 0, 0 }); // nothing is hovered
    m_dialog = std::make_unique<ServerForm>();
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get(), patience));
    QTRY_VERIFY(isStill(*m_dialog));
}

void TestFormLookOnServer::cleanup()
{
    m_dialog.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestFormLookOnServer::ringIsTheSameAsADrawing_data()
{
    QTest::addColumn<int>("letter");
    QTest::newRow("button") << int('s');
    QTest::newRow("tile") << int('m');
    QTest::newRow("tile in a grid") << int('t');
    QTest::newRow("glyph") << int('r');
    QTest::newRow("switch") << int('w');
    QTest::newRow("slider") << int('v');
    QTest::newRow("line edit") << int('n');
    QTest::newRow("shortcut edit") << int('h');
}

void TestFormLookOnServer::ringIsTheSameAsADrawing()
{
    QFETCH(int, letter);
    const WidgetForm &form = *m_dialog->form;
    const QHash<int, QPair<QWidget *, int>> framed{
        { 's', { form.save, form.save->height() / 5 } },
        { 'm', { form.mail, 10 } },
        { 't', { m_dialog->news, 10 } },
        { 'r', { form.star, 4 } },
        { 'w', { form.wifi, form.wifi->height() / 2 } },
        { 'v', { form.volume, form.volume->height() / 2 } },
        { 'n', { form.name, 3 } },
        { 'h', { form.shortcut, 3 } },
    };
    const auto [widget, radius] = framed.value(letter);
    m_dialog->form->password->lineEdit()->setFocus(Qt::MouseFocusReason);
    m_keys->clickWith(Symbol::alt, quint32(letter));
    QTRY_VERIFY(hasRing(*m_dialog));
    QTRY_VERIFY(isStill(*m_dialog));
    const QImage with = shown(*m_dialog);
    m_dialog->support->setFeatures(m_dialog->support->features() & ~OlvFormSupport::FocusRing);
    QVERIFY(!hasRing(*m_dialog));
    QTRY_VERIFY(shown(*m_dialog) != with);
    QTRY_VERIFY(isStill(*m_dialog));
    const QRect place(widget->mapTo(m_dialog.get(), QPoint()), widget->size());
    COMPARE_PICTURES(
        with,
        withRing(shown(*m_dialog), place, radius, m_dialog->palette().color(QPalette::Highlight)));
}

/** Each ring is around its stop, and alone. */
void TestFormLookOnServer::everyStopHasARing()
{
    const QRgb color = m_dialog->palette().color(QPalette::Highlight).rgb();
    const QWidgetList stops = m_dialog->stops();
    stops.last()->setFocus();
    for (QWidget *stop : stops) {
        m_keys->click(Symbol::tab);
        QTRY_COMPARE(QApplication::focusWidget(), stop);
        const QWidget *framed = qobject_cast<QLineEdit *>(stop) ? stop->parentWidget() : stop;
        const auto isAround = [&] {
            const QImage picture = shown(*framed, ringMargin);
            const QPoint middle = picture.rect().center();
            // the inner of its two pixels, since the outer one is rounded off
            return picture.pixel(middle.x(), 1) == color
                && picture.pixel(middle.x(), picture.height() - 2) == color
                && picture.pixel(1, middle.y()) == color
                && picture.pixel(picture.width() - 2, middle.y()) == color;
        };
        QTRY_VERIFY2(isAround(), framed->metaObject()->className());
        QCOMPARE(m_dialog->findChildren<QFocusFrame *>().size(), 1);
    }
}

void TestFormLookOnServer::aClickShowsNoRing()
{
    RealInput pointer;
    pointer.moveTo(*m_dialog->form->wifi, m_dialog->form->wifi->rect().center());
    pointer.click();
    QTRY_COMPARE(QApplication::focusWidget(), m_dialog->form->wifi);
    QVERIFY(!hasRing(*m_dialog));
    m_keys->click(Symbol::space);
    QTRY_VERIFY(hasRing(*m_dialog));
}

void TestFormLookOnServer::disabledWidgetsAreTheEnabledOnesFaded()
{
    const WidgetForm &form = *m_dialog->form;
    const QWidgetList widgets{ form.save, form.mail, form.wifi, form.volume, form.shortcut };
    QVector<QImage> enabled;
    for (const QWidget *widget : widgets) {
        enabled.append(shown(*widget));
    }
    m_dialog->form->setEnabled(false);
    QTRY_VERIFY(shown(*widgets.first()) != enabled.first());
    QTRY_VERIFY(isStill(*m_dialog));
    const QColor ground = m_dialog->palette().color(QPalette::Window);
    for (int i = 0; i < widgets.size(); ++i) {
        // the drawings round differently, once for each of what lies upon one another
        const int largest =
            largestDifference(shown(*widgets.at(i)), faded(enabled.at(i), ground, opacity));
        QVERIFY2(largest <= 2,
                 qPrintable(QStringLiteral("%1: %2")
                                .arg(QLatin1String(widgets.at(i)->metaObject()->className()))
                                .arg(largest)));
    }
    m_dialog->form->setEnabled(true);
    QTRY_COMPARE(shown(*widgets.first()), enabled.first());
    for (int i = 0; i < widgets.size(); ++i) {
        QTRY_COMPARE(shown(*widgets.at(i)), enabled.at(i));
    }
}

/** In a form that sets no size, in the least space that it can do with. */
void TestFormLookOnServer::everyWidgetIsLargeEnoughToBeHit()
{
    m_dialog->resize(m_dialog->form->rows()->minimumSize());
    const QWidgetList stops = m_dialog->stops();
    for (const QWidget *stop : stops) {
        const QWidget *widget = qobject_cast<const QLineEdit *>(stop) ? stop->parentWidget() : stop;
        QVERIFY2(widget->width() >= leastSide && widget->height() >= leastSide,
                 qPrintable(QStringLiteral("%1: %2 x %3")
                                .arg(QLatin1String(widget->metaObject()->className()))
                                .arg(widget->width())
                                .arg(widget->height())));
    }
}

void TestFormLookOnServer::assistiveProgramsHearOfTheFocus()
{
    const Assistant assistant;
    const QAccessible::UpdateHandler before = QAccessible::installUpdateHandler(noteFocus);
    const QWidgetList stops = m_dialog->stops();
    stops.last()->setFocus();
    focusUpdates().clear();
    for (QWidget *stop : stops) {
        m_keys->click(Symbol::tab);
        QTRY_COMPARE(QApplication::focusWidget(), stop);
        QTRY_VERIFY(!focusUpdates().isEmpty());
        QCOMPARE(focusUpdates(), QVector<QPointer<QObject>>{ stop });
        focusUpdates().clear();
        const QAccessible::State state = accessible(stop)->state();
        QVERIFY(state.focusable);
        QVERIFY(state.focused);
    }
    QAccessible::installUpdateHandler(before);
    // the labels name the widgets, the text of a line edit too
    QCOMPARE(nameOf(m_dialog->form->name->lineEdit()), QStringLiteral("Name"));
    QCOMPARE(nameOf(m_dialog->form->volume), QStringLiteral("Volume"));
}

ADD_TEST(TestFormLookOnServer, QApplication)
#include "tst_formlookonserver.moc"
