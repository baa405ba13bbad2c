// SPDX-License-Identifier: MIT
// One form with every widget, loaded at run time and compiled by uic: both give the same widgets,
// which look as they do when they are made in code.
#include "forms.h"
#include "testprogram.h"
#include "ui_everywidget.h"

#include <QFile>
#include <QTest>

#include <memory>

namespace {

std::unique_ptr<QWidget> loadedForm()
{
    QFile file(QStringLiteral(OLV_FORMS "/everywidget.ui"));
    return file.open(QIODevice::ReadOnly) ? loadForm(QString::fromUtf8(file.readAll()), nullptr)
                                          : nullptr;
}

std::unique_ptr<QWidget> compiledForm()
{
    auto form = std::make_unique<QWidget>();
    Ui::EveryWidget ui;
    ui.setupUi(form.get());
    return form;
}

QImage pictureOf(QWidget *widget)
{
    // a child comes with an alpha channel, a window without
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

class TestForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();
    void hasEveryWidget();
    void setsTheDynamicProperties();
    void looksAsTheWidgetsMadeInCodeDo();
    void givesTheBarItsGlyphs();
    void putsChildrenIntoThePanel();

private:
    template <class Widget = QWidget> Widget *find(const char *name)
    {
        // a class of the library that has no Q_OBJECT cannot be asked for; none is in the form
        return m_form->findChild<Widget *>(QLatin1String(name));
    }

    std::unique_ptr<QWidget> m_form;
};

void TestForms::initTestCase_data()
{
    QTest::addColumn<bool>("compiled");
    QTest::newRow("loaded by QUiLoader") << false;
    QTest::newRow("compiled by uic") << true;
}

void TestForms::init()
{
    QFETCH_GLOBAL(bool, compiled);
    m_form = compiled ? compiledForm() : loadedForm();
    QVERIFY(m_form);
    m_form->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_form.get()));
}

void TestForms::cleanup()
{
    m_form.reset();
}

void TestForms::hasEveryWidget()
{
    QCOMPARE(m_form->windowTitle(), QStringLiteral("Every widget"));
    QCOMPARE(m_form->size(), QSize(400, 400));
    QVERIFY(find<OlvButton>("save"));
    QVERIFY(find<OlvIconButton>("mail"));
    QVERIFY(find<OlvSimpleIconButton>("star"));
    QVERIFY(find<OlvLineEdit>("search"));
    QVERIFY(find<OlvShortcutEdit>("shortcut"));
    QVERIFY(find<OlvSwitch>("wifi"));
    QVERIFY(find<OlvSlider>("volume"));
    QVERIFY(find<OlvControlBar>("bar"));
    QVERIFY(find<OlvDragWidget>("drag"));
    QVERIFY(find<OlvGridLayout>("grid"));
    QVERIFY(find<OlvFlexWidget>("note"));
    QCOMPARE(find("save")->geometry(), QRect(20, 20, 90, 32));
    QCOMPARE(find("bar")->geometry(), QRect(170, 160, 210, 25));
    QCOMPARE(find("note")->geometry(), QRect(140, 195, 240, 70));
    // the grid scrolls in its viewport, and has not made the form its window
    QCOMPARE(find("grid")->property("isSubWindow"), QVariant(false));
}

void TestForms::setsTheDynamicProperties()
{
    auto *save = find<OlvButton>("save");
    QCOMPARE(save->property("content"), QVariant(QStringLiteral("Save")));
    QVERIFY(save->isCheckable());
    QVERIFY(save->isChecked());
    QCOMPARE(save->getValue(), QVariant(true));
    auto *mail = find<OlvIconButton>("mail");
    QCOMPARE(mail->icon(), QChar(0xf0e0));
    QCOMPARE(mail->property("color"), QVariant(0xff409effU));
    QVERIFY(isChecked(mail));
    QCOMPARE(find("search")->property("Icon"), QVariant(QStringLiteral("@")));
    QCOMPARE(find("wifi")->property("closeColor"), QVariant(QStringLiteral("64,158,255")));
    QCOMPARE(find<OlvSlider>("volume")->getValue(), QVariant(40));
    QCOMPARE(find("note")->property("headerWay"), QVariant(int(OlvFlexWidget::HeaderLeft)));
}

void TestForms::looksAsTheWidgetsMadeInCodeDo()
{
    OlvButton save(QStringLiteral("Save"), nullptr);
    save.setOlvStyle(QStringLiteral("success"), QStringLiteral("round"));
    save.setCheckable(true);
    save.setChecked(true);
    save.resize(90, 32);
    QCOMPARE(pictureOf(find("save")), pictureOf(&save));

    OlvIconButton mail(QChar(0xf0e0), QStringLiteral("Mail"), QStringLiteral("FontAwesome"),
                       nullptr, 80, 80);
    mail.setColor(QColor(64, 158, 255));
    mail.setCheckable(true);
    mail.setProperty("isChecked", true);
    QCOMPARE(pictureOf(find("mail")), pictureOf(&mail));

    OlvSimpleIconButton star(QChar(0xf005), QFont(QStringLiteral("FontAwesome"), 14));
    QCOMPARE(pictureOf(find("star")), pictureOf(&star));

    OlvLineEdit search;
    search.resize(210, 32);
    search.setIcon(QStringLiteral("@"));
    QCOMPARE(pictureOf(find("search")), pictureOf(&search));

    OlvSwitch wifi;
    wifi.setColorOpen(QColor(200, 200, 200));
    wifi.resize(50, 24);
    QCOMPARE(pictureOf(find("wifi")), pictureOf(&wifi));
}

void TestForms::givesTheBarItsGlyphs()
{
    const QList<QPushButton *> buttons = find("bar")->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 6);
    for (const QPushButton *button : buttons) {
        QCOMPARE(button->text().size(), 1);
    }
}

void TestForms::putsChildrenIntoThePanel()
{
    QCOMPARE(find("noteText")->parentWidget(), find("note"));
    QVERIFY(find("noteText")->isVisible());
}

ADD_TEST(TestForms, QApplication)
#include "tst_forms.moc"
