// SPDX-License-Identifier: MIT
// How new widgets behave in forms, and whether what Designer says about that is true.
#include "deferred.h"
#include "forms.h"
#include "plugin.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

QString inRow(const QString &className)
{
    return inForm(
        QStringLiteral("<layout class=\"QHBoxLayout\" name=\"row\"><item>%1</item></layout>")
            .arg(elementOf(pluginWidget(className)->domXml())));
}

} // namespace

class TestWidgetsInForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void haveThePoliciesAndLeastSizesThatLayoutsNeed_data();
    void haveThePoliciesAndLeastSizesThatLayoutsNeed();
    void fillALayoutAtItsLeastSize_data();
    void fillALayoutAtItsLeastSize();
    void leaveTheBarRoomForItsButtons();
    void areSwitchedOnOnceTheFormIsLoaded();
    void slideTheKnobOnceTheFormIsLoaded();
    void makeAGridOnAFormActAsAWindow();
};

void TestWidgetsInForms::cleanup()
{
    runDeferred();
}

void TestWidgetsInForms::haveThePoliciesAndLeastSizesThatLayoutsNeed_data()
{
    QTest::addColumn<QSizePolicy>("policy");
    QTest::addColumn<QSize>("leastSize");
    const auto add = [](const char *name, QSizePolicy::Policy horizontal,
                        QSizePolicy::Policy vertical, QSize leastSize) {
        QTest::newRow(name) << QSizePolicy(horizontal, vertical) << leastSize;
    };
    const QSize none(0, 0);
    const QSize natural; // which goes by the font
    add("OlvButton", QSizePolicy::Minimum, QSizePolicy::Fixed, natural);
    add("OlvIconButton", QSizePolicy::Fixed, QSizePolicy::Fixed, { 80, 80 });
    add("OlvSimpleIconButton", QSizePolicy::Fixed, QSizePolicy::Fixed, none);
    add("OlvLineEdit", QSizePolicy::Expanding, QSizePolicy::Fixed, natural);
    add("OlvShortcutEdit", QSizePolicy::Expanding, QSizePolicy::Fixed, natural);
    add("OlvSwitch", QSizePolicy::Fixed, QSizePolicy::Fixed, natural);
    add("OlvSlider", QSizePolicy::Expanding, QSizePolicy::Fixed, natural);
    add("OlvControlBar", QSizePolicy::Expanding, QSizePolicy::Fixed, { 0, 25 });
    add("OlvDragWidget", QSizePolicy::Preferred, QSizePolicy::Preferred, none);
    add("OlvGridLayout", QSizePolicy::Preferred, QSizePolicy::Preferred, none);
    add("OlvFlexWidget", QSizePolicy::Preferred, QSizePolicy::Preferred, { 50, 50 });
}

void TestWidgetsInForms::haveThePoliciesAndLeastSizesThatLayoutsNeed()
{
    QFETCH(QSizePolicy, policy);
    QFETCH(QSize, leastSize);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QWidget window;
    QWidget viewport(&window);
    const std::unique_ptr<QWidget> widget = loadForm(pluginWidget(name)->domXml(), &viewport);
    QVERIFY(widget);
    QCOMPARE(widget->sizePolicy().horizontalPolicy(), policy.horizontalPolicy());
    QCOMPARE(widget->sizePolicy().verticalPolicy(), policy.verticalPolicy());
    QCOMPARE(widget->minimumSize(),
             leastSize.isValid() ? leastSize : OlvFormSupport::naturalSize(widget.get()));
}

void TestWidgetsInForms::fillALayoutAtItsLeastSize_data()
{
    QTest::addColumn<QString>("name");
    const QList<QDesignerCustomWidgetInterface *> plugins = pluginWidgets();
    for (QDesignerCustomWidgetInterface *plugin : plugins) {
        QTest::newRow(qPrintable(plugin->name())) << plugin->name();
    }
}

void TestWidgetsInForms::fillALayoutAtItsLeastSize()
{
    QFETCH(QString, name);
    QWidget window;
    const std::unique_ptr<QWidget> form = loadForm(inRow(name), &window);
    QVERIFY(form);
    const auto *widget = form->findChild<QWidget *>(name.at(0).toLower() + name.mid(1));
    QVERIFY(widget);
    if (widget->sizePolicy().verticalPolicy() != QSizePolicy::Fixed) {
        return; // as large as the form, which says how large that is
    }
    form->resize(form->minimumSizeHint());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY2(widget->width() >= 15 && widget->height() >= 15,
             qPrintable(QStringLiteral("%1 x %2").arg(widget->width()).arg(widget->height())));
}

void TestWidgetsInForms::leaveTheBarRoomForItsButtons()
{
    QWidget window;
    const std::unique_ptr<QWidget> form = loadForm(inRow(QStringLiteral("OlvControlBar")), &window);
    QVERIFY(form);
    form->resize(form->minimumSizeHint());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto *bar = form->findChild<OlvControlBar *>();
    QVERIFY(bar);
    const QList<QPushButton *> buttons = bar->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 6);
    for (const QPushButton *button : buttons) {
        QVERIFY(bar->rect().contains(button->geometry()));
        for (const QPushButton *other : buttons) {
            QVERIFY(other == button || !other->geometry().intersects(button->geometry()));
        }
    }
}

void TestWidgetsInForms::areSwitchedOnOnceTheFormIsLoaded()
{
    auto *plugin = pluginWidget(QStringLiteral("OlvSwitch"));
    QVERIFY(plugin->toolTip().contains(QLatin1String("off in a form")));
    QVERIFY(plugin->whatsThis().contains(QLatin1String("setChecked(true)")));
    const std::unique_ptr<QWidget> form = loadForm(inForm(elementOf(plugin->domXml())), nullptr);
    auto *widget = form->findChild<OlvSwitch *>();
    QVERIFY(widget);
    QSignalSpy valueChanged(widget, &OlvWidget::valueChanged);
    QSignalSpy changed(widget, &OlvSwitch::changed);
    widget->setChecked(true);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(valueChanged.size(), 1);
    QCOMPARE(widget->getValue(), QVariant(true));
    const auto *knob = dynamic_cast<SwitchRound *>(widget->childAt(widget->width() - 5, 12));
    QVERIFY(knob);
}

void TestWidgetsInForms::slideTheKnobOnceTheFormIsLoaded()
{
    auto *plugin = pluginWidget(QStringLiteral("OlvSlider"));
    QVERIFY(plugin->toolTip().contains(QLatin1String("knob is at 0 in a form")));
    QVERIFY(plugin->whatsThis().contains(QLatin1String("setSliderPosition(40)")));
    const std::unique_ptr<QWidget> form = loadForm(inForm(elementOf(plugin->domXml())), nullptr);
    auto *slider = form->findChild<OlvSlider *>();
    QVERIFY(slider);
    const QPoint atZero(15, 15);
    QVERIFY(slider->childAt(atZero));
    slider->setValue(40);
    QVERIFY(slider->childAt(atZero)); // which is why a form cannot set it
    slider->setSliderPosition(40);
    QVERIFY(!slider->childAt(atZero));
    QVERIFY(dynamic_cast<SliderRound *>(slider->childAt(15 + (200 - 30) * 2 / 5, 15)));
    QCOMPARE(slider->getValue(), QVariant(40));
}

void TestWidgetsInForms::makeAGridOnAFormActAsAWindow()
{
    auto *plugin = pluginWidget(QStringLiteral("OlvGridLayout"));
    QVERIFY(plugin->toolTip().contains(QLatin1String("viewport")));
    for (const char *word : { "viewport", "act as a window", "whenever that is resized" }) {
        QVERIFY2(plugin->whatsThis().contains(QLatin1String(word)), word);
    }
    const std::unique_ptr<QWidget> form = loadForm(inForm(elementOf(plugin->domXml())), nullptr);
    auto *grid = form->findChild<OlvGridLayout *>();
    QVERIFY(grid);
    QCOMPARE(grid->property("isSubWindow"), QVariant(true));
    form->resize(300, 300);
    auto *tile = new QWidget(grid);
    tile->resize(40, 40);
    grid->addWidget(tile);
    QCOMPARE(form->height(), 40 + 2 * 15 + 2);
}

ADD_TEST(TestWidgetsInForms, QApplication)
#include "tst_widgetsinforms.moc"
