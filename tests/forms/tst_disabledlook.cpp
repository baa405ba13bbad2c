// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "makewidget.h"
#include "pixels.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QGraphicsBlurEffect>
#include <QPushButton>
#include <QTest>

namespace {

constexpr qreal opacity = 0.4;

} // namespace

class TestDisabledLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        runDeferred();
    }
    void isTheEnabledOneFaded_data();
    void isTheEnabledOneFaded();
    void comesAndGoes();
    void comesWithADisabledForm();
    void comesToAWidgetThatIsDisabledAlready();
    void leavesAnEffectOfTheApplication();
    void goesWithTheFeatureAndTheSupport();
    void isNotForContainers();
};

void TestDisabledLook::isTheEnabledOneFaded_data()
{
    QTest::addColumn<MakeIn>("make");
    QTest::addColumn<qreal>("ratio");
    const QVector<QPair<const char *, MakeIn>> kinds{
        { "button",
          [](QWidget *parent) -> QWidget * {
              return new OlvButton(QStringLiteral("Save"), parent);
          } },
        { "tile",
          [](QWidget *parent) -> QWidget * {
              return new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"),
                                       QStringLiteral("Sans"), parent, 80, 80);
          } },
        { "switch",
          [](QWidget *parent) -> QWidget * {
              auto *toggle = new OlvSwitch(parent);
              toggle->setChecked(true);
              return toggle;
          } },
        { "slider",
          [](QWidget *parent) -> QWidget * {
              auto *slider = new OlvSlider(parent);
              slider->setSliderPosition(40);
              return slider;
          } },
        { "glyph",
          [](QWidget *parent) -> QWidget * {
              return new OlvSimpleIconButton(QStringLiteral("█X"),
                                             QFont(QStringLiteral("Sans"), 20), parent);
          } },
        { "shortcut edit",
          [](QWidget *parent) -> QWidget * {
              return new OlvShortcutEdit(parent);
          } },
    };
    for (const qreal ratio : { 1.0, 1.5, 2.0 }) {
        for (const auto &kind : kinds) {
            QTest::addRow("%s at %g", kind.first, ratio) << kind.second << ratio;
        }
    }
}

void TestDisabledLook::isTheEnabledOneFaded()
{
    QFETCH(MakeIn, make);
    QFETCH(qreal, ratio);
    QWidget window;
    window.resize(140, 100);
    QWidget *widget = make(&window);
    widget->setGeometry(10, 10, 110, 40);
    new OlvFormSupport(&window, OlvFormSupport::DisabledLook);
    window.show();
    const QImage enabled = pictureOfWindow(window, ratio);
    widget->setEnabled(false);
    const QImage disabled = pictureOfWindow(window, ratio);
    const QImage expected = faded(enabled, window.palette().color(QPalette::Window), opacity);
    QVERIFY(enabled != disabled);
    // the drawings round differently, once for each of what lies upon one another
    QVERIFY2(largestDifference(disabled, expected) <= 2,
             qPrintable(QString::number(largestDifference(disabled, expected))));
    widget->setEnabled(true);
    COMPARE_PICTURES(pictureOfWindow(window, ratio), enabled);
}

void TestDisabledLook::comesAndGoes()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    QVERIFY(!form.wifi->graphicsEffect());
    for (int i = 0; i < 3; ++i) {
        form.wifi->setEnabled(false);
        QVERIFY(form.wifi->graphicsEffect());
        form.wifi->setEnabled(true);
        QVERIFY(!form.wifi->graphicsEffect());
    }
    QVERIFY(!form.volume->graphicsEffect());
}

void TestDisabledLook::comesWithADisabledForm()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.setEnabled(false);
    QVERIFY(form.wifi->graphicsEffect());
    QVERIFY(form.name->graphicsEffect());
    QVERIFY(!form.graphicsEffect());
    form.setEnabled(true);
    QVERIFY(!form.wifi->graphicsEffect());
}

void TestDisabledLook::comesToAWidgetThatIsDisabledAlready()
{
    WidgetForm form;
    form.save->setEnabled(false);
    auto *support = new OlvFormSupport(&form);
    QVERIFY(form.save->graphicsEffect());
    delete support;
    QVERIFY(!form.save->graphicsEffect());
}

void TestDisabledLook::leavesAnEffectOfTheApplication()
{
    WidgetForm form;
    auto *own = new QGraphicsBlurEffect;
    form.save->setGraphicsEffect(own);
    auto *support = new OlvFormSupport(&form);
    form.save->setEnabled(false);
    QCOMPARE(form.save->graphicsEffect(), own);
    form.save->setEnabled(true);
    QCOMPARE(form.save->graphicsEffect(), own);

    form.wifi->setEnabled(false);
    auto *later = new QGraphicsBlurEffect;
    form.wifi->setGraphicsEffect(later); // deletes the one of the support
    form.wifi->setEnabled(true);
    QCOMPARE(form.wifi->graphicsEffect(), later);
    delete support;
    QCOMPARE(form.wifi->graphicsEffect(), later);
}

void TestDisabledLook::goesWithTheFeatureAndTheSupport()
{
    WidgetForm form;
    form.save->setEnabled(false);
    auto *support = new OlvFormSupport(&form, OlvFormSupport::Keyboard);
    QVERIFY(!form.save->graphicsEffect());
    support->setFeatures(OlvFormSupport::AllFeatures);
    QVERIFY(form.save->graphicsEffect());
    support->setFeatures(OlvFormSupport::Keyboard);
    QVERIFY(!form.save->graphicsEffect());
    support->setFeatures(OlvFormSupport::AllFeatures);
    form.save->setParent(nullptr);
    QVERIFY(!form.save->graphicsEffect());
    delete form.save;
}

/** Or what is in them would be faded twice. */
void TestDisabledLook::isNotForContainers()
{
    QWidget window;
    auto *bar = new OlvControlBar({}, &window);
    auto *panel = new OlvFlexWidget(200, 100, &window);
    panel->setWindowFlags(Qt::Widget);
    auto *button = new OlvButton(QStringLiteral("Save"), panel);
    new OlvFormSupport(&window);
    window.setEnabled(false);
    QVERIFY(!bar->graphicsEffect());
    QVERIFY(bar->findChild<QPushButton *>()->graphicsEffect());
    QVERIFY(!panel->graphicsEffect());
    QVERIFY(button->graphicsEffect());
}

ADD_TEST(TestDisabledLook, QApplication)
#include "tst_disabledlook.moc"
