// SPDX-License-Identifier: MIT
// When the values of a form reach a table: the ways of models and mappers, drags and Escape.
#include "fakeshortcut.h"
#include "recordform.h"
#include "sizedswitch.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <QApplication>
#include <QDialog>
#include <QKeySequenceEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

#include <functional>
#include <memory>

namespace {

constexpr int slidingTime = 300; // milliseconds

/** What the widgets of a form show, and where their knobs stand. */
QVariantList shownIn(const RecordForm &form)
{
    return {
        form.name->getText(),
        form.notify->isChecked(),
        knobOf(*form.notify)->x(),
        form.volume->getValue(),
        knobOf(*form.volume)->x(),
        form.tile->getValue().toBool(),
        form.starred->getValue().toBool(),
        form.keys->shortcut() != nullptr,
    };
}

/** What a new form shows of the record at @p row. */
QVariantList shownAt(int row)
{
    RecordForm form;
    form.mapper.setCurrentIndex(row);
    return shownIn(form);
}

/** Sends a knob what comes while both buttons of a mouse are used on it. */
void sendToKnob(OlvSlider &slider, QEvent::Type type, int x, Qt::MouseButton button,
                Qt::MouseButtons buttons)
{
    QMouseEvent event(type, QPointF(x, 10), QCursor::pos(), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(knobOf(slider), &event);
}

/** Changes a line, a switch and a slider as the user does. */
void changeThree(RecordForm &form)
{
    type(*form.name, QStringLiteral("Eve"));
    releaseMouse(*form.notify);
    dragKnobToTheEnd(*form.volume);
}

/** What a dialog with a mapped editor is left with after Escape in @p part of that. */
QVariantList leftByEscape(QDialog &dialog, const QStandardItemModel &model, QWidget *part)
{
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    part->setFocus();
    if (auto *text = qobject_cast<QLineEdit *>(part)) {
        QTest::keyClicks(text, QStringLiteral("x"));
    }
    QTest::keyClick(part, Qt::Key_Escape);
    return { dialog.isVisible(), part->hasFocus(), model.index(0, 0).data().toString() };
}

} // namespace

Q_DECLARE_METATYPE(QSqlTableModel::EditStrategy)

class TestValueSubmits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void dropsWhatIsNotSubmittedBeforeTheNextRecord_data();
    void dropsWhatIsNotSubmittedBeforeTheNextRecord();
    void storesARowWhenTheModelSubmitsIt_data();
    void storesARowWhenTheModelSubmitsIt();
    void triesAgainOnceTheModelHasStoredAnotherRow();
    void submitsADragOfTwoButtonsOnce_data();
    void submitsADragOfTwoButtonsOnce();
    void leavesAtEscapeWhatALineEditOfQtsLeaves();
    void leavesAtEscapeWhatAShortcutEditOfQtsLeaves();

private:
    std::unique_ptr<RecordDatabase> m_database;
};

void TestValueSubmits::init()
{
    m_database = std::make_unique<RecordDatabase>();
    QVERIFY(m_database->isOpen());
}

void TestValueSubmits::cleanup()
{
    m_database.reset();
}

void TestValueSubmits::dropsWhatIsNotSubmittedBeforeTheNextRecord_data()
{
    QTest::addColumn<RecordAction>("act");
    QTest::addColumn<bool>("backwards");
    const QVector<QPair<const char *, RecordAction>> actions{
        { "line edit",
          [](RecordForm &form) {
              type(*form.name, QStringLiteral("Eve"));
          } },
        { "unfinished line edit",
          [](RecordForm &form) {
              QTest::keyClicks(form.name->lineEdit(), QStringLiteral("x"));
          } },
        { "switch",
          [](RecordForm &form) {
              releaseMouse(*form.notify);
          } },
        { "slider",
          [](RecordForm &form) {
              dragKnobToTheEnd(*form.volume);
          } },
        { "tile",
          [](RecordForm &form) {
              click(*form.tile);
          } },
        { "button",
          [](RecordForm &form) {
              click(*form.starred);
          } },
        { "shortcut edit",
          [](RecordForm &form) {
              form.keys->setShortcut(new FakeShortcut(QStringLiteral("Ctrl+F6")));
          } },
    };
    for (const bool backwards : { false, true }) {
        for (const auto &action : actions) {
            QTest::addRow("%s, %s", action.first, backwards ? "to previous" : "to next")
                << action.second << backwards;
        }
    }
}

void TestValueSubmits::dropsWhatIsNotSubmittedBeforeTheNextRecord()
{
    QFETCH(RecordAction, act);
    QFETCH(bool, backwards);
    const int row = backwards ? 1 : 0;
    const QVector<QVariantList> before = RecordDatabase::stored();
    const QVariantList one = shownAt(row);
    const QVariantList other = shownAt(1 - row);
    RecordForm form(QDataWidgetMapper::ManualSubmit);
    form.mapper.setCurrentIndex(row);
    QCOMPARE(shownIn(form), one);
    act(form);
    QVERIFY(shownIn(form) != one);

    backwards ? form.mapper.toPrevious() : form.mapper.toNext();
    QCOMPARE(shownIn(form), other); // at once
    QVERIFY(form.mapper.submit());
    QCOMPARE(RecordDatabase::stored(), before);
    QTest::qWait(slidingTime);
    QCOMPARE(shownIn(form), other);
    backwards ? form.mapper.toNext() : form.mapper.toPrevious();
    QCOMPARE(shownIn(form), one);
    QVERIFY(form.mapper.submit());
    QCOMPARE(RecordDatabase::stored(), before);
}

void TestValueSubmits::storesARowWhenTheModelSubmitsIt_data()
{
    QTest::addColumn<QSqlTableModel::EditStrategy>("strategy");
    QTest::addColumn<QDataWidgetMapper::SubmitPolicy>("policy");
    QTest::newRow("row, auto") << QSqlTableModel::OnRowChange << QDataWidgetMapper::AutoSubmit;
    QTest::newRow("row, manual") << QSqlTableModel::OnRowChange << QDataWidgetMapper::ManualSubmit;
    QTest::newRow("model, auto") << QSqlTableModel::OnManualSubmit << QDataWidgetMapper::AutoSubmit;
    QTest::newRow("model, manual")
        << QSqlTableModel::OnManualSubmit << QDataWidgetMapper::ManualSubmit;
}

void TestValueSubmits::storesARowWhenTheModelSubmitsIt()
{
    QFETCH(QSqlTableModel::EditStrategy, strategy);
    QFETCH(QDataWidgetMapper::SubmitPolicy, policy);
    QVector<QVariantList> expected = RecordDatabase::stored();
    RecordForm form(policy);
    form.model.setEditStrategy(strategy);
    form.mapper.setCurrentIndex(0);
    changeThree(form);
    QCOMPARE(RecordDatabase::stored(), expected);
    const bool isInModel = policy == QDataWidgetMapper::AutoSubmit;
    const auto inModel = [&](int column) {
        return form.model.index(0, column).data();
    };
    QCOMPARE(inModel(NameColumn) == QVariant(QStringLiteral("Eve")), isInModel);
    QCOMPARE(inModel(VolumeColumn) == QVariant(100), isInModel);

    QVERIFY(form.mapper.submit());
    if (strategy == QSqlTableModel::OnManualSubmit) {
        QCOMPARE(RecordDatabase::stored(), expected);
        QCOMPARE(inModel(NameColumn), QVariant(QStringLiteral("Eve")));
        QVERIFY(form.model.submitAll());
    }
    expected[0][NameColumn] = QStringLiteral("Eve");
    expected[0][NotifyColumn] = 0;
    expected[0][VolumeColumn] = 100;
    QCOMPARE(RecordDatabase::stored(), expected);
    form.mapper.setCurrentIndex(0); // a model that has submitted all its rows shows them anew
    QCOMPARE(form.name->getText(), QStringLiteral("Eve"));
    QVERIFY(!form.notify->isChecked());
    QCOMPARE(form.volume->getValue(), QVariant(100));
}

/** QSqlTableModel takes changes of one row at a time under OnRowChange. */
void TestValueSubmits::triesAgainOnceTheModelHasStoredAnotherRow()
{
    QVector<QVariantList> expected = RecordDatabase::stored();
    RecordForm form;
    form.model.setEditStrategy(QSqlTableModel::OnRowChange);
    form.mapper.setCurrentIndex(0);
    changeThree(form);
    form.mapper.toNext();
    QCOMPARE(form.name->getText(), QStringLiteral("Bob"));
    QCOMPARE(RecordDatabase::stored(), expected);
    dragKnobToTheEnd(*form.volume);
    QCOMPARE(RecordDatabase::stored(), expected);
    QVERIFY(form.mapper.submit());
    expected[0][NameColumn] = QStringLiteral("Eve");
    expected[0][NotifyColumn] = 0;
    expected[0][VolumeColumn] = 100;
    QCOMPARE(RecordDatabase::stored(), expected);
    QVERIFY(form.mapper.submit());
    expected[1][VolumeColumn] = 100;
    QCOMPARE(RecordDatabase::stored(), expected);
}

void TestValueSubmits::submitsADragOfTwoButtonsOnce_data()
{
    QTest::addColumn<bool>("isFirst");
    QTest::newRow("first released first") << true;
    QTest::newRow("second released first") << false;
}

/** The knob ends the drag at the release of either button, and moves no more after it. */
void TestValueSubmits::submitsADragOfTwoButtonsOnce()
{
    QFETCH(bool, isFirst);
    constexpr Qt::MouseButtons both = Qt::LeftButton | Qt::RightButton;
    const Qt::MouseButton released = isFirst ? Qt::LeftButton : Qt::RightButton;
    const Qt::MouseButton held = isFirst ? Qt::RightButton : Qt::LeftButton;
    RecordForm form;
    OlvSlider &slider = *form.volume;
    const QSignalSpy written(&form.model, &QAbstractItemModel::dataChanged);
    sendToKnob(slider, QEvent::MouseButtonPress, 10, Qt::LeftButton, Qt::LeftButton);
    sendToKnob(slider, QEvent::MouseMove, 20, Qt::NoButton, Qt::LeftButton);
    sendToKnob(slider, QEvent::MouseButtonPress, 10, Qt::RightButton, both);
    for (const int x : { 15, 20, 25 }) {
        sendToKnob(slider, QEvent::MouseMove, x, Qt::NoButton, both);
    }
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), QVariant(30));
    QCOMPARE(written.size(), 0);
    const QVariant chosen = slider.getValue();
    QVERIFY(chosen.toInt() > 30);

    sendToKnob(slider, QEvent::MouseButtonRelease, 10, released, held);
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), chosen);
    const auto writings = written.size();
    QVERIFY(writings > 0);
    for (const int x : { 30, 60, 1000 }) {
        sendToKnob(slider, QEvent::MouseMove, x, Qt::NoButton, held);
    }
    sendToKnob(slider, QEvent::MouseButtonRelease, 10, held, Qt::NoButton);
    QCOMPARE(slider.getValue(), chosen);
    QCOMPARE(RecordDatabase::stored(0, VolumeColumn), chosen);
    QCOMPARE(written.size(), writings);
}

void TestValueSubmits::leavesAtEscapeWhatALineEditOfQtsLeaves()
{
    for (const auto policy : { QDataWidgetMapper::AutoSubmit, QDataWidgetMapper::ManualSubmit }) {
        const auto play = [&](QWidget *editor, QLineEdit *text, const QByteArray &property) {
            QStandardItemModel model(1, 1);
            model.setData(model.index(0, 0), QStringLiteral("stored"));
            QDialog dialog;
            editor->setParent(&dialog);
            QDataWidgetMapper mapper;
            mapper.setModel(&model);
            mapper.setItemDelegate(new OlvValueDelegate(&mapper));
            mapper.setSubmitPolicy(policy);
            mapper.addMapping(editor, 0, property);
            mapper.toFirst();
            QVariantList left = leftByEscape(dialog, model, text);
            left << text->text() << text->isModified() << text->isUndoAvailable()
                 << text->cursorPosition();
            mapper.submit();
            return left << model.index(0, 0).data();
        };
        auto *ofQt = new QLineEdit;
        const QVariantList expected = play(ofQt, ofQt, "text");
        auto *line = new OlvLineEdit;
        QCOMPARE(play(line, line->lineEdit(), {}), expected);
        QCOMPARE(expected.mid(0, 4),
                 QVariantList({ true, true, QStringLiteral("stored"), QStringLiteral("stored") }));
    }
}

/** The one takes the key for a new shortcut, which is not granted, and the other gives it up. */
void TestValueSubmits::leavesAtEscapeWhatAShortcutEditOfQtsLeaves()
{
    const QString stored = QStringLiteral("Ctrl+F6");
    const auto play = [&](QWidget *editor, const QByteArray &property) {
        QStandardItemModel model(1, 1);
        model.setData(model.index(0, 0), stored);
        QDialog dialog;
        editor->setParent(&dialog);
        QDataWidgetMapper mapper;
        mapper.setModel(&model);
        mapper.setItemDelegate(new OlvValueDelegate(&mapper));
        mapper.addMapping(editor, 0, property);
        mapper.toFirst();
        auto *edit = dynamic_cast<OlvShortcutEdit *>(editor);
        if (edit) {
            edit->setShortcut(new FakeShortcut(stored));
        }
        QVariantList left = leftByEscape(dialog, model, editor);
        left << (edit ? edit->getValue() : editor->property("keySequence")).toString();
        mapper.submit();
        return left << model.index(0, 0).data().toString();
    };
    const QVariantList expected{ true, true, stored, stored, stored };
    QCOMPARE(play(new QKeySequenceEdit, "keySequence"), expected);
    QCOMPARE(play(new OlvShortcutEdit(nullptr), {}), expected);
}

ADD_TEST(TestValueSubmits, QApplication)
#include "tst_valuesubmits.moc"
