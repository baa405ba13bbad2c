// SPDX-License-Identifier: MIT
// Editors of single values: what they write, in which type, and in the cells of views.
#include "lateform.h"
#include "sizedswitch.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <OlvButton>
#include <OlvIconButton>
#include <OlvLineEdit>
#include <OlvShortcutEdit>
#include <OlvValueDelegate>

#include <QApplication>
#include <QDataWidgetMapper>
#include <QDialog>
#include <QItemEditorFactory>
#include <QLineEdit>
#include <QPointer>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

class TestValueEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesNothingThatNobodyChanged_data();
    void writesNothingThatNobodyChanged();
    void keepsTheTypeOfAColumn_data();
    void keepsTheTypeOfAColumn();
    void triesAgainWhatTheModelRefused();
    void showsWhatTheModelChangesAtTheSameTime();
    void showsWhatTheModelChangesOverAValueThatWaits();
    void writesASwitchBackAfterTheModelCameToEqualIt();
    void writesNothingOverARecordThatItDoesNotShow();
    void writesWhatTheUserDoesWhereNoRecordIsShown();
    void writesNothingOfAnotherRecordOverOneThatItDoesNotShow();
    void showsAShortcutThatCannotBeHadAsNone();
    void editsCellsOfViews();
    void forgetsEditorsThatHaveGone();
    void leavesTheKeysToALineThatIsNoLongerMapped_data();
    void leavesTheKeysToALineThatIsNoLongerMapped();
};

void TestValueEditors::writesNothingThatNobodyChanged_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("null") << QVariant();
    QTest::newRow("text") << QVariant(QStringLiteral("no such thing"));
    QTest::newRow("beyond") << QVariant(1234);
    QTest::newRow("below") << QVariant(-5);
    QTest::newRow("fraction") << QVariant(12.5);
    QTest::newRow("bytes") << QVariant(QByteArray("\xff\x00\x80", 3));
}

void TestValueEditors::writesNothingThatNobodyChanged()
{
    QFETCH(QVariant, stored);
    constexpr int count = 6; // every OlvWidget of the library
    QStandardItemModel model(2, count);
    for (int column = 0; column < count; ++column) {
        model.setData(model.index(0, column), stored, Qt::EditRole);
        model.setData(model.index(1, column), 50, Qt::EditRole);
    }
    OlvLineEdit line;
    OlvSwitch toggle;
    OlvSlider slider;
    OlvButton button;
    OlvShortcutEdit shortcut(nullptr);
    OlvIconButton tile(QLatin1Char('t'), QString(), QStringLiteral("Sans"), nullptr, 40, 40);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
    OlvWidget *const widgets[count] = { &line, &toggle, &slider, &button, &shortcut, &tile };
    for (int column = 0; column < count; ++column) {
        mapper.addMapping(widgets[column], column);
    }
    for (const int row : { 0, 1, 0 }) {
        mapper.setCurrentIndex(row);
        QVERIFY(mapper.submit());
    }
    for (int column = 0; column < count; ++column) {
        QCOMPARE(model.index(0, column).data(Qt::EditRole), stored);
        QCOMPARE(model.index(1, column).data(Qt::EditRole), QVariant(50));
    }
    QCOMPARE(toggle.isChecked(), stored.toInt() != 0);
    QCOMPARE(button.getValue(), QVariant(stored.toBool()));
    QVERIFY(!shortcut.shortcut());
    QCOMPARE(tile.getValue(), stored);
    QCOMPARE(slider.getValue().toInt(), qBound(0, qRound(stored.toDouble()), 100));
}

void TestValueEditors::keepsTheTypeOfAColumn_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("int") << QVariant(1) << QVariant(0);
    QTest::newRow("bool") << QVariant(true) << QVariant(false);
    QTest::newRow("text") << QVariant(QStringLiteral("true")) << QVariant(QStringLiteral("false"));
    QTest::newRow("real") << QVariant(1.0) << QVariant(0.0);
    QTest::newRow("none") << QVariant() << QVariant(true);
}

void TestValueEditors::keepsTheTypeOfAColumn()
{
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), before, Qt::EditRole);
    OlvSwitch toggle;
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.addMapping(&toggle, 0);
    mapper.toFirst();
    releaseMouse(toggle);
    const QVariant stored = model.index(0, 0).data(Qt::EditRole);
    QCOMPARE(stored, after);
    QCOMPARE(stored.userType(), after.userType());
}

void TestValueEditors::triesAgainWhatTheModelRefused()
{
    /** Takes nothing at first. */
    class Model : public QStandardItemModel
    {
    public:
        bool takes = false;

        Model()
            : QStandardItemModel(1, 1)
        { }
        bool setData(const QModelIndex &index, const QVariant &value, int role) override
        {
            return takes && QStandardItemModel::setData(index, value, role);
        }
    };
    Model model;
    OlvLineEdit line;
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.addMapping(&line, 0);
    mapper.toFirst();
    line.setText(QStringLiteral("new"));
    QTest::keyClick(line.lineEdit(), Qt::Key_Return);
    QCOMPARE(model.index(0, 0).data(), QVariant());
    model.takes = true;
    QTest::keyClick(line.lineEdit(), Qt::Key_Return);
    QCOMPARE(model.index(0, 0).data(), QVariant(QStringLiteral("new")));
}

void TestValueEditors::showsWhatTheModelChangesAtTheSameTime()
{
    LateForm form;
    form.mapper.setSubmitPolicy(QDataWidgetMapper::AutoSubmit);
    form.mapper.toFirst();
    connect(&form.model, &QStandardItemModel::itemChanged, this, [&](const QStandardItem *item) {
        if (item->column() == 1) {
            form.model.setData(form.model.index(0, 2), 5, Qt::EditRole);
        }
    });
    releaseMouse(form.toggle);
    QCOMPARE(form.slider.getValue(), QVariant(5));
}

/** As Qt's own line edit does: the newest value of the record is shown. */
void TestValueEditors::showsWhatTheModelChangesOverAValueThatWaits()
{
    LateForm form;
    form.mapper.toFirst();
    QTest::keyClicks(form.line.lineEdit(), QStringLiteral("typed "));
    form.slider.setSliderPosition(70);
    form.model.setData(form.model.index(0, 0), QStringLiteral("newer"));
    form.model.setData(form.model.index(0, 2), 55, Qt::EditRole);
    QCOMPARE(form.line.getValue(), QVariant(QStringLiteral("newer")));
    QCOMPARE(form.slider.getValue().toInt(), 55);
}

void TestValueEditors::writesASwitchBackAfterTheModelCameToEqualIt()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), false, Qt::EditRole);
    OlvSwitch toggle;
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
    mapper.addMapping(&toggle, 0);
    mapper.toFirst();
    toggle.setChecked(true);
    model.setData(model.index(0, 0), true, Qt::EditRole);
    toggle.setChecked(false);
    QVERIFY(mapper.submit());
    QCOMPARE(model.index(0, 0).data(Qt::EditRole), QVariant(false));
}

void TestValueEditors::writesNothingOverARecordThatItDoesNotShow()
{
    LateForm form;
    for (int i = 0; i < 2; ++i) {
        QVERIFY(form.mapper.submit());
        QCOMPARE(form.stored(0), QVariant(QStringLiteral("kept")));
        QCOMPARE(form.stored(1), QVariant(true));
        QCOMPARE(form.stored(2), QVariant(30));
    }
}

void TestValueEditors::writesWhatTheUserDoesWhereNoRecordIsShown()
{
    LateForm form;
    QTest::keyClicks(form.line.lineEdit(), QStringLiteral("typed"));
    dragKnobToTheEnd(form.slider);
    QVERIFY(form.mapper.submit());
    QCOMPARE(form.stored(0), QVariant(QStringLiteral("typed")));
    QCOMPARE(form.stored(1), QVariant(true));
    QCOMPARE(form.stored(2), QVariant(100));

    releaseMouse(form.toggle);
    releaseMouse(form.toggle); // back to where it stood, which the record is not
    QTRY_VERIFY(!form.toggle.isChecked());
    QVERIFY(form.mapper.submit());
    QCOMPARE(form.stored(1), QVariant(false));
}

void TestValueEditors::writesNothingOfAnotherRecordOverOneThatItDoesNotShow()
{
    LateForm form;
    form.mapper.revert();
    QTest::keyClicks(form.line.lineEdit(), QStringLiteral("typed"));
    QVERIFY(form.mapper.submit());
    QCOMPARE(form.stored(0), QVariant(QStringLiteral("kepttyped")));
    form.mapper.removeMapping(&form.slider);
    form.mapper.addMapping(&form.line, 2);
    QVERIFY(form.mapper.submit());
    QCOMPARE(form.stored(2), QVariant(30));
}

void TestValueEditors::showsAShortcutThatCannotBeHadAsNone()
{
    // no server to register shortcuts with: whatever is stored stays
    QStandardItemModel model(2, 1);
    model.setData(model.index(0, 0), QStringLiteral("Ctrl+F5"));
    OlvShortcutEdit editor(nullptr);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.addMapping(&editor, 0);
    for (const int row : { 0, 1, 0 }) {
        mapper.setCurrentIndex(row);
        QVERIFY(!editor.shortcut());
        QVERIFY(mapper.submit());
    }
    QCOMPARE(model.index(0, 0).data(), QVariant(QStringLiteral("Ctrl+F5")));
    QCOMPARE(model.index(1, 0).data(), QVariant());
}

void TestValueEditors::editsCellsOfViews()
{
    QItemEditorFactory factory;
    factory.registerEditor(QVariant::Bool, new QStandardItemEditorCreator<OlvSwitch>);
    factory.registerEditor(QVariant::Int, new QStandardItemEditorCreator<OlvSlider>);
    factory.registerEditor(QVariant::String, new QStandardItemEditorCreator<OlvLineEdit>);
    QStandardItemModel model(1, 3);
    model.setData(model.index(0, 0), true, Qt::EditRole);
    model.setData(model.index(0, 1), 30, Qt::EditRole);
    model.setData(model.index(0, 2), QStringLiteral("old"), Qt::EditRole);
    OlvValueDelegate delegate;
    delegate.setItemEditorFactory(&factory);
    QTableView view;
    view.setModel(&model);
    view.setItemDelegate(&delegate);
    view.resize(600, 200);
    view.show();
    QApplication::setActiveWindow(&view);

    view.edit(model.index(0, 0));
    const QPointer<OlvSwitch> toggle(view.findChild<OlvSwitch *>());
    QVERIFY(toggle);
    QVERIFY(toggle->isChecked());
    QVERIFY(toggle->hasFocus());
    releaseMouse(*toggle);
    view.setFocus(); // while it slides
    QTRY_VERIFY(!toggle);
    QCOMPARE(model.index(0, 0).data(Qt::EditRole), QVariant(false));

    view.edit(model.index(0, 1));
    const QPointer<OlvSlider> slider(view.findChild<OlvSlider *>());
    QVERIFY(slider);
    QCOMPARE(slider->getValue(), QVariant(30));
    dragKnobToTheEnd(*slider);
    QCOMPARE(model.index(0, 1).data(Qt::EditRole), QVariant(100));
    view.setFocus();
    QTRY_VERIFY(!slider);

    view.edit(model.index(0, 2));
    const QPointer<OlvLineEdit> line(view.findChild<OlvLineEdit *>());
    QVERIFY(line);
    QVERIFY(line->lineEdit()->hasFocus());
    QTest::keyClicks(line->lineEdit(), QStringLiteral("er"));
    QTest::keyClick(line->lineEdit(), Qt::Key_Return);
    QTRY_VERIFY(!line);
    QCOMPARE(model.index(0, 2).data(), QVariant(QStringLiteral("er")));

    view.edit(model.index(0, 2));
    const QPointer<OlvLineEdit> left(view.findChild<OlvLineEdit *>());
    QTest::keyClicks(left->lineEdit(), QStringLiteral("left"));
    view.setFocus();
    QTRY_VERIFY(!left);
    QCOMPARE(model.index(0, 2).data(), QVariant(QStringLiteral("left")));

    view.edit(model.index(0, 2));
    const QPointer<OlvLineEdit> again(view.findChild<OlvLineEdit *>());
    QTest::keyClicks(again->lineEdit(), QStringLiteral("thrown away"));
    QKeyEvent escape(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
    escape.ignore();
    QApplication::sendEvent(again->lineEdit(), &escape);
    QVERIFY(escape.isAccepted()); // the key is no shortcut here
    QTest::keyClick(again->lineEdit(), Qt::Key_Escape);
    QTRY_VERIFY(!again);
    QCOMPARE(model.index(0, 2).data(), QVariant(QStringLiteral("left")));
}

void TestValueEditors::forgetsEditorsThatHaveGone()
{
    QStandardItemModel model(1, 1);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    auto *toggle = new OlvSwitch;
    mapper.addMapping(toggle, 0);
    mapper.toFirst();
    releaseMouse(*toggle);
    delete toggle;
    mapper.revert();
    QVERIFY(mapper.submit());
    QCOMPARE(model.index(0, 0).data(Qt::EditRole), QVariant(true));
}

void TestValueEditors::leavesTheKeysToALineThatIsNoLongerMapped_data()
{
    QTest::addColumn<bool>("all");
    QTest::newRow("removeMapping") << false;
    QTest::newRow("clearMapping") << true;
}

void TestValueEditors::leavesTheKeysToALineThatIsNoLongerMapped()
{
    QFETCH(bool, all);
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("stored"));
    QDialog dialog;
    OlvLineEdit line(&dialog);
    QLineEdit next(&dialog);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.addMapping(&line, 0);
    mapper.toFirst();
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QLineEdit *text = line.lineEdit();
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("x"));
    QTest::keyClick(text, Qt::Key_Escape);
    QCOMPARE(text->text(), QStringLiteral("stored"));
    QVERIFY(dialog.isVisible());

    if (all) {
        mapper.clearMapping();
    } else {
        mapper.removeMapping(&line);
    }
    QTest::keyClick(text, Qt::Key_Tab);
    QVERIFY(!text->hasFocus());
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("x"));
    QTest::keyClick(text, Qt::Key_Escape);
    QCOMPARE(text->text(), QStringLiteral("storedx"));
    QVERIFY(!dialog.isVisible());

    mapper.addMapping(&line, 0);
    mapper.toFirst();
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    text->setFocus();
    QTest::keyClick(text, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
}

ADD_TEST(TestValueEditors, QApplication)
#include "tst_valueeditors.moc"
