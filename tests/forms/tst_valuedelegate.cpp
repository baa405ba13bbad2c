// SPDX-License-Identifier: MIT
// A form of the library's widgets on a table of a database.
#include "fakeshortcut.h"
#include "recordform.h"
#include "sizedswitch.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <QApplication>
#include <QTest>

#include <functional>
#include <memory>

namespace {

constexpr int switchingTime = 250; // milliseconds
constexpr int hurry = 20;          // milliseconds

} // namespace

Q_DECLARE_METATYPE(QDataWidgetMapper::SubmitPolicy)

class TestValueDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsRecordsAtOnce();
    void navigatesInAHurry();
    void storesWhatTheUserDoes_data();
    void storesWhatTheUserDoes();
    void storesAllThatHasBeenDone();
    void keepsATextWhileAnotherValueIsStored();
    void keepsTheSpellingOfAShortcut();
    void storesTheSwitchThatStillSlides();
    void aSecondClickIsNotTakenForTheNextRecord();
    void overwritesWhatItCouldNotShowOnceTheUserChangesIt();
    void showsTheRecordAnewOnEscape();
    void submitsWhatTheApplicationSets();
    void submitsASliderOnceItsDragHasEnded();
    void submitsASliderThatIsHiddenDuringADrag();
    void standsADeletionWhileItStores_data();
    void standsADeletionWhileItStores();

private:
    std::unique_ptr<RecordDatabase> m_database;
};

void TestValueDelegate::init()
{
    m_database = std::make_unique<RecordDatabase>();
    QVERIFY(m_database->isOpen());
}

void TestValueDelegate::cleanup()
{
    m_database.reset();
}

void TestValueDelegate::showsRecordsAtOnce()
{
    RecordForm form;
    QCOMPARE(form.name->getText(), QStringLiteral("Ann"));
    QCOMPARE(form.notify->getValue(), QVariant(true));
    QCOMPARE(knobOf(*form.notify)->x(), 40);
    QCOMPARE(form.volume->getValue(), QVariant(30));
    QCOMPARE(knobOf(*form.volume)->x(), 51 + 5);
    QVERIFY(!form.tile->getValue().toBool());
    QCOMPARE(form.rest->text(), QStringLiteral("first"));

    form.mapper.toNext();
    QCOMPARE(form.name->getText(), QStringLiteral("Bob"));
    QCOMPARE(form.notify->getValue(), QVariant(false));
    QCOMPARE(knobOf(*form.notify)->x(), 0);
    QCOMPARE(form.volume->getValue(), QVariant(70));
    QCOMPARE(knobOf(*form.volume)->x(), 119 + 5);
    QVERIFY(form.tile->getValue().toBool());
    QVERIFY(form.starred->getValue().toBool());

    form.mapper.toNext();
    QCOMPARE(form.name->getText(), QString());
    QVERIFY(!form.notify->isChecked());
    QCOMPARE(form.volume->getValue(), QVariant(0));
    QCOMPARE(knobOf(*form.volume)->x(), 5);
    QVERIFY(!form.tile->getValue().toBool());
    QVERIFY(!form.starred->getValue().toBool());
    QVERIFY(!form.keys->shortcut());
}

void TestValueDelegate::navigatesInAHurry()
{
    const QVector<QVariantList> before = RecordDatabase::stored();
    RecordForm form;
    for (int i = 0; i < 6; ++i) {
        form.mapper.toNext();
        QTest::qWait(hurry);
        form.mapper.toNext();
        QTest::qWait(hurry);
        QCOMPARE(form.notify->getValue(), QVariant(false));
        QCOMPARE(knobOf(*form.notify)->x(), 0);
        form.mapper.toPrevious();
        QTest::qWait(hurry);
        QCOMPARE(form.volume->getValue(), QVariant(70));
        form.mapper.toPrevious();
        QTest::qWait(hurry);
        QCOMPARE(form.notify->getValue(), QVariant(true));
        QCOMPARE(knobOf(*form.notify)->x(), 40);
    }
    QTest::qWait(switchingTime + hurry);
    QCOMPARE(form.notify->getValue(), QVariant(true));
    QCOMPARE(RecordDatabase::stored(), before);
    for (int column = NameColumn; column < ColumnCount; ++column) {
        QVERIFY(RecordDatabase::stored(2, column).isNull());
    }
}

void TestValueDelegate::storesWhatTheUserDoes_data()
{
    QTest::addColumn<QDataWidgetMapper::SubmitPolicy>("policy");
    QTest::addColumn<bool>("backwards");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<RecordAction>("act");
    QTest::addColumn<QVariant>("value");

    const struct
    {
        const char *name;
        Column column;
        RecordAction act;
        QVariant values[3]; // in each of the records
    } widgets[] = {
        { "line edit",
          NameColumn,
          [](RecordForm &form) { type(*form.name, QStringLiteral("Eve")); },
          { QStringLiteral("Eve"), QStringLiteral("Eve"), QStringLiteral("Eve") } },
        { "switch",
          NotifyColumn,
          [](RecordForm &form) { releaseMouse(*form.notify); },
          { 0, 1, 1 } },
        { "slider",
          VolumeColumn,
          [](RecordForm &form) { dragKnobToTheEnd(*form.volume); },
          { 100, 100, 100 } },
        { "tile", TileColumn, [](RecordForm &form) { click(*form.tile); }, { 1, 0, 1 } },
        { "button", StarredColumn, [](RecordForm &form) { click(*form.starred); }, { 1, 0, 1 } },
        { "shortcut edit",
          KeysColumn,
          // no combination can be registered on this platform, so that a fake one stands for it
          [](RecordForm &form) {
              form.keys->setShortcut(new FakeShortcut(QStringLiteral("Ctrl+F6")));
          },
          { QStringLiteral("Ctrl+F6"), QStringLiteral("Ctrl+F6"), QStringLiteral("Ctrl+F6") } },
        { "line edit of Qt's",
          RestColumn,
          [](RecordForm &form) {
              form.rest->setFocus();
              form.rest->selectAll();
              QTest::keyClicks(form.rest, QStringLiteral("more"));
              QTest::keyClick(form.rest, Qt::Key_Return);
              QCoreApplication::processEvents(); // Qt submits it later
          },
          { QStringLiteral("more"), QStringLiteral("more"), QStringLiteral("more") } },
    };
    for (const auto policy : { QDataWidgetMapper::AutoSubmit, QDataWidgetMapper::ManualSubmit }) {
        for (const auto &widget : widgets) {
            for (int row = 0; row < 3; ++row) {
                QTest::addRow("%s, record %d, %s", widget.name, row,
                              policy == QDataWidgetMapper::AutoSubmit ? "auto" : "manual")
                    << policy << (row == 2) << row << int(widget.column) << widget.act
                    << widget.values[row];
            }
        }
    }
}

void TestValueDelegate::storesWhatTheUserDoes()
{
    QFETCH(QDataWidgetMapper::SubmitPolicy, policy);
    QFETCH(bool, backwards);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(RecordAction, act);
    QFETCH(QVariant, value);
    RecordForm form(policy);
    form.show();
    QApplication::setActiveWindow(&form);
    form.mapper.setCurrentIndex(row);
    QVector<QVariantList> expected = RecordDatabase::stored();

    act(form);
    if (policy == QDataWidgetMapper::ManualSubmit) {
        QCOMPARE(RecordDatabase::stored(), expected);
        QVERIFY(form.mapper.submit());
    }
    expected[row][column] = value; // and nothing else has changed
    QCOMPARE(RecordDatabase::stored(), expected);

    QTest::qWait(hurry);
    backwards ? form.mapper.toPrevious() : form.mapper.toNext();
    QTest::qWait(hurry);
    backwards ? form.mapper.toNext() : form.mapper.toPrevious();
    QCOMPARE(form.model.index(row, column).data(), value);
    if (column == NotifyColumn) {
        QTest::qWait(switchingTime);
    }
    QCOMPARE(RecordDatabase::stored(), expected);
}

/** Although the model shows the whole record again when one of its values is stored. */
void TestValueDelegate::storesAllThatHasBeenDone()
{
    RecordForm form(QDataWidgetMapper::ManualSubmit);
    form.name->setText(QStringLiteral("Eve"));
    releaseMouse(*form.notify);
    dragKnobToTheEnd(*form.volume);
    click(*form.tile);
    click(*form.starred);
    form.keys->setShortcut(new FakeShortcut(QStringLiteral("Ctrl+F6")));
    QVERIFY(form.mapper.submit());
    const QVariantList stored = RecordDatabase::stored().at(0);
    const QVariantList expected{
        1, QStringLiteral("Eve"), 0, 100, 1, 1, QStringLiteral("Ctrl+F6"), QStringLiteral("first")
    };
    QCOMPARE(stored, expected);
}

void TestValueDelegate::keepsATextWhileAnotherValueIsStored()
{
    RecordForm form;
    QTest::keyClicks(form.name->lineEdit(), QStringLiteral("x"));
    dragKnobToTheEnd(*form.volume); // does not take the focus, so that the text is not finished
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), QVariant(100));
    QCOMPARE(form.name->getText(), QStringLiteral("Annx"));
    form.mapper.revert();
    QCOMPARE(form.name->getText(), QStringLiteral("Ann"));
    QTest::keyClicks(form.name->lineEdit(), QStringLiteral("y"));
    releaseMouse(*form.notify);
    QTest::keyClick(form.name->lineEdit(), Qt::Key_Return);
    QCOMPARE(RecordDatabase::stored(0, NameColumn), QVariant(QStringLiteral("Anny")));
    QCOMPARE(RecordDatabase::stored(0, NotifyColumn), QVariant(0));
}

/** Which may come after its record has been shown, as a desktop may grant it later. */
void TestValueDelegate::keepsTheSpellingOfAShortcut()
{
    QSqlQuery().exec(QStringLiteral("UPDATE people SET keys = 'ctrl+f6'"));
    RecordForm form;
    QVERIFY(!form.keys->shortcut());
    form.keys->setShortcut(new FakeShortcut(QStringLiteral("Ctrl+F6")));
    QCOMPARE(RecordDatabase::stored(0, KeysColumn), QVariant(QStringLiteral("ctrl+f6")));
    form.keys->setShortcut(new FakeShortcut(QStringLiteral("Ctrl+F7")));
    QCOMPARE(RecordDatabase::stored(0, KeysColumn), QVariant(QStringLiteral("Ctrl+F7")));
    form.keys->setShortcut(new FakeShortcut(QStringLiteral("Ctrl+F6")));
    QCOMPARE(RecordDatabase::stored(0, KeysColumn), QVariant(QStringLiteral("Ctrl+F6")));
}

void TestValueDelegate::storesTheSwitchThatStillSlides()
{
    RecordForm form;
    releaseMouse(*form.notify);
    QTest::qWait(hurry);
    QCOMPARE(form.notify->getValue(), QVariant(true)); // it goes on to slide
    QVERIFY(!form.notify->isChecked());
    form.mapper.toNext();
    QVERIFY(!form.notify->isChecked());
    QCOMPARE(knobOf(*form.notify)->x(), 0);
    QTest::qWait(switchingTime + hurry);
    QCOMPARE(RecordDatabase::stored(0, NotifyColumn), QVariant(0));
    QCOMPARE(RecordDatabase::stored(1, NotifyColumn), QVariant(0));
    form.mapper.toPrevious();
    QVERIFY(!form.notify->isChecked());
}

void TestValueDelegate::aSecondClickIsNotTakenForTheNextRecord()
{
    RecordForm form;
    releaseMouse(*form.notify);
    releaseMouse(*form.notify); // before the first step: the switch would flip back and forth
    form.mapper.toNext();
    QTest::qWait(3 * switchingTime);
    QCOMPARE(form.notify->getValue(), QVariant(false));
    QCOMPARE(RecordDatabase::stored(1, NotifyColumn), QVariant(0));
}

void TestValueDelegate::overwritesWhatItCouldNotShowOnceTheUserChangesIt()
{
    QSqlQuery().exec(QStringLiteral("UPDATE people SET notify = 'perhaps', volume = 'loud'"));
    RecordForm form;
    QVERIFY(!form.notify->isChecked());
    QCOMPARE(form.volume->getValue(), QVariant(0));
    releaseMouse(*form.notify);
    QCOMPARE(RecordDatabase::stored(0, NotifyColumn).toInt(), 1);
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), QVariant(QStringLiteral("loud")));
    dragKnobToTheEnd(*form.volume);
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn).toInt(), 100);
    QCOMPARE(RecordDatabase::stored(1, VolumeColumn), QVariant(QStringLiteral("loud")));
}

void TestValueDelegate::showsTheRecordAnewOnEscape()
{
    RecordForm form;
    form.show();
    QApplication::setActiveWindow(&form);
    QLineEdit *text = form.name->lineEdit();
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("x"));
    QCOMPARE(form.name->getText(), QStringLiteral("Annx"));
    QTest::keyClick(text, Qt::Key_Escape);
    QCOMPARE(form.name->getText(), QStringLiteral("Ann"));
    QTest::keyClick(text, Qt::Key_Return);
    QCOMPARE(RecordDatabase::stored(0, NameColumn), QVariant(QStringLiteral("Ann")));
}

void TestValueDelegate::submitsWhatTheApplicationSets()
{
    RecordForm form;
    form.notify->setChecked(false);
    QCOMPARE(RecordDatabase::stored(0, NotifyColumn), QVariant(0));
    form.volume->setSliderPosition(45);
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), QVariant(45));
    form.tile->setValue(true);
    QCOMPARE(RecordDatabase::stored(0, TileColumn), QVariant(1));
}

void TestValueDelegate::submitsASliderOnceItsDragHasEnded()
{
    RecordForm form;
    SliderRound *knob = knobOf(*form.volume);
    Mouse::press(knob, { 10, 10 });
    for (const int x : { 20, 30, 1000 }) {
        Mouse::move(knob, { qreal(x), 10 });
        QCOMPARE(RecordDatabase::stored(0, VolumeColumn), QVariant(30));
    }
    Mouse::release(knob);
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), QVariant(100));
}

void TestValueDelegate::submitsASliderThatIsHiddenDuringADrag()
{
    RecordForm form;
    form.show();
    SliderRound *knob = knobOf(*form.volume);
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { 1000, 10 });
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), QVariant(30));
    form.volume->hide();
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), QVariant(100));
    form.volume->show();
    form.volume->setSliderPosition(45); // as a key does
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), QVariant(45));
}

void TestValueDelegate::standsADeletionWhileItStores_data()
{
    QTest::addColumn<RecordAction>("act");
    QTest::newRow("line edit") << RecordAction(
        [](RecordForm &form) { type(*form.name, QStringLiteral("Eve")); });
    QTest::newRow("switch") << RecordAction([](RecordForm &form) { releaseMouse(*form.notify); });
    QTest::newRow("slider") << RecordAction(
        [](RecordForm &form) { dragKnobToTheEnd(*form.volume); });
    QTest::newRow("tile") << RecordAction([](RecordForm &form) { click(*form.tile); });
    QTest::newRow("button") << RecordAction([](RecordForm &form) { form.starred->setValue(true); });
    QTest::newRow("shortcut edit") << RecordAction([](RecordForm &form) {
        form.keys->setShortcut(new FakeShortcut(QStringLiteral("Ctrl+F6")));
    });
}

void TestValueDelegate::standsADeletionWhileItStores()
{
    QFETCH(RecordAction, act);
    RecordForm form;
    const QObjectList widgets = form.children();
    connect(&form.model, &QAbstractItemModel::dataChanged, this, [&] {
        form.model.disconnect(this);
        const auto all = form.findChildren<OlvWidget *>(QString(), Qt::FindDirectChildrenOnly);
        qDeleteAll(all);
    });
    act(form);
    QVERIFY(form.children().size() < widgets.size());
}

ADD_TEST(TestValueDelegate, QApplication)
#include "tst_valuedelegate.moc"
