// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "pointer.h"
#include "surroundings.h"
#include "testprogram.h"

#include <QTest>

#include <memory>

/** The documented examples do what they say. */
class TestClassExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        runDeferred();
    }
    void intCounts()
    {
#include "OlvInt.inc"
        QList<int> values{ page };
        for (int i = 0; i < 4; ++i) {
            values.append(++page);
        }
        QCOMPARE(values, (QList<int>{ 1, 2, 3, 0, 1 }));
    }
    void lastOnceFunctionRaisesThePanel()
    {
        QWidget window;
        auto *panel = new QWidget(&window);
        new QWidget(&window);
#include "OlvLastOnceFunction.inc"
        QCOMPARE(window.children().last() == panel, false);
        QTRY_COMPARE(window.children().last(), panel);
    }
    void eventFilterOpensTheLink()
    {
        Link link;
        QTest::mouseClick(link.label, Qt::LeftButton);
        QCOMPARE(link.opened, 1);
    }
    void widgetIsBoundToSettings()
    {
        Settings settings;
        settings.store("wifi", true);
        OlvSwitch wifi;
        wifi.resize(50, 24);
        bind(&wifi, &settings, "wifi");
        QTRY_COMPARE(wifi.getValue(), QVariant(true));
        QTRY_COMPARE(wifi.property("moveCount"), QVariant(0));
        wifi.setValue(false);
        QTRY_COMPARE(settings.value("wifi"), QVariant(false));
    }
    void buttonSaves()
    {
        Editor editor;
        QCOMPARE(editor.button->property("type"), QVariant("round"));
        QCOMPARE(editor.button->property("color"), QVariant("success"));
        QTest::ignoreMessage(QtDebugMsg, "true");
        editor.button->click(true);
        QCOMPARE(editor.saved, 1);
    }
    void iconButtonTellsClicks()
    {
        Desktop desktop;
        QCOMPARE(desktop.tile->icon(), QChar(0xf0e0));
        Pointer::click(*desktop.tile);
        QTRY_COMPARE(desktop.selected, 1);
        Pointer::click(*desktop.tile);
        Pointer::click(*desktop.tile);
        QTRY_COMPARE(desktop.opened, 1);
    }
    void simpleIconButtonStars()
    {
        Page page;
        page.button->click();
        QVERIFY(page.starred);
        QCOMPARE(page.button->text(), QString(QChar(0xf005)));
    }
    void lineEditIsAsked()
    {
        Login login;
        login.line->setText("horse 42");
        login.login->click();
        QCOMPARE(login.checked, QString("horse 42"));
        QCOMPARE(login.line->property("Pwd"), QVariant(true));
    }
    void shortcutEditFollowsItsShortcut()
    {
        Recorder recorder;
        recorder.addShortcutEdit();
        auto *shortcut = new FreeShortcut(Qt::Key_F5, true, false, false, false);
        QVERIFY(recorder.field->setShortcut(shortcut));
        Q_EMIT shortcut->activated();
        QCOMPARE(recorder.started, 1);
    }
    void shortcutStarts()
    {
        Recorder recorder;
        // nothing can be registered without an X server
        QTest::ignoreMessage(QtInfoMsg, "\"Ctrl+F5\" is taken");
        recorder.addShortcut();
        Q_EMIT recorder.key->activated();
        QCOMPARE(recorder.started, 1);
    }
    void recordsAreShownAndStored()
    {
        Table table;
        table.setData(table.index(0, 1), true, Qt::EditRole);
        table.setData(table.index(0, 2), 60, Qt::EditRole);
        MappedForm form(&table);
        QVERIFY(form.notify->isChecked());
        QCOMPARE(form.volume->getValue(), QVariant(60));
        form.notify->setChecked(false);
        QCOMPARE(table.index(0, 1).data(Qt::EditRole), QVariant(false));
    }
    void sliderSetsTheVolume()
    {
        Mixer mixer;
        QCOMPARE(mixer.slider->size(), QSize(300, 30));
        mixer.slider->setValue(42);
        mixer.okButton->click();
        QCOMPARE(mixer.player->volume, 42);
    }
    void sliderKnobIsMoved()
    {
        QWidget window;
        auto *slider = new OlvSlider(&window);
        window.show();
#include "SliderRound.inc"
        QVERIFY(slider->childAt(15 + (200 - 30) * 2 / 5, 15));
        QVERIFY(!slider->childAt(15, 15));
        QCOMPARE(slider->getValue(), QVariant(40));
    }
    void switchTurnsTheRadioOn()
    {
        Panel panel;
        QTRY_VERIFY(panel.radio->enabled);
    }
    void switchKnobIsMovedAndColoured()
    {
        QWidget window;
        auto *wifi = new OlvSwitch(&window);
        wifi->setGeometry(20, 100, 50, 24);
        window.show();
#include "SwitchRound.inc"
        QVERIFY(wifi->childAt(45, 12));
        QVERIFY(!wifi->childAt(5, 12));
        QCOMPARE(window.grab().toImage().pixelColor(20 + 50 - 12, 112), QColor(255, 193, 7));
    }
    void windowIsMovedByItsTitle()
    {
        QWidget stage;
        auto *window = new QWidget(&stage);
        window->setGeometry(50, 50, 200, 100);
#include "OlvMoveWidget.inc"
        QCOMPARE(mover->property("MoveArea"), QVariant(QRect(0, 0, 200, 32)));
    }
    void handlesFollowTheWindow()
    {
        Window window;
        window.resize(300, 200);
        window.show();
        QTRY_COMPARE(placeOf(window, OlvResizeItem::Corner), window.rect().bottomRight());
    }
    void handleGetsATip()
    {
        QWidget stage;
        auto *window = new QWidget(&stage);
        new OlvResizeWidget(window, 5);
        stage.show();
#include "OlvResizeItem.inc"
        QStringList tips;
        for (QObject *child : window->children()) {
            if (auto *handle = dynamic_cast<OlvResizeItem *>(child)) {
                tips.append(handle->toolTip());
            }
        }
        QCOMPARE(tips.count("Drag to resize"), 1);
        QCOMPARE(dynamic_cast<OlvResizeItem *>(corner)->type(), OlvResizeItem::Corner);
        QCOMPARE(tips.size(), 3);
    }
    void controlBarActs()
    {
        BarWindow window;
        window.show();
        QCOMPARE(window.buttons.size(), 7);
        window.buttons.first()->click(); // the application's own comes first
        QCOMPARE(window.opened, 1);
        window.buttons.at(5)->click();
        QVERIFY(window.isMaximized());
        window.buttons.at(5)->click();
        QVERIFY(!window.isMaximized());
    }
    void placeholderTakesThePlace()
    {
        QWidget window;
        auto *shelf = new QWidget(&window);
        auto *desk = new QWidget(&window);
        auto *tile = new QWidget(shelf);
        tile->setGeometry(10, 20, 80, 60);
#include "OlvDragWidget.inc"
        QCOMPARE(placeholder->geometry(), QRect(10, 20, 80, 60));
        QCOMPARE(placeholder->parentWidget(), shelf);
    }
    void gridTakesTheTiles()
    {
        QWidget window;
        auto *viewport = new QWidget(&window);
        viewport->resize(400, 300);
        const QList<Item> items{ { QChar(0xf0e0), "Mail" }, { QChar(0xf001), "Music" } };
#include "OlvGridLayout.inc"
        QCOMPARE(tiles.size(), items.size());
        QCOMPARE(grid->width(), viewport->width());
        QCOMPARE(tiles.first()->y(), tiles.last()->y());
        QVERIFY(tiles.first()->geometry().right() < tiles.last()->x());
    }
    void formSupportOpensTheForm()
    {
        const Profile profile;
        const QList<OlvWidget *> fields = profile.findChildren<OlvWidget *>();
        QCOMPARE(fields.size(), 3);
        for (const OlvWidget *field : fields) {
            QVERIFY(field->focusPolicy() != Qt::NoFocus);
            QVERIFY(field->minimumHeight() >= 20);
        }
    }
    void noteStaysOnTop()
    {
#include "OlvFlexWidget.inc"
        const std::unique_ptr<OlvFlexWidget> owned(note);
        QVERIFY(note->isVisible());
        QVERIFY(note->windowFlags() & Qt::WindowStaysOnTopHint);
        QCOMPARE(note->property("headerWay"), QVariant(int(OlvFlexWidget::HeaderTop)));
    }
};

ADD_TEST(TestClassExamples, QApplication)
#include "tst_classexamples.moc"
