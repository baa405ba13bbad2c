// SPDX-License-Identifier: MIT
#include "mouse.h"
#include "sizedswitch.h"
#include "sliderknob.h"

#include <OlvButton>
#include <OlvIconButton>
#include <OlvLineEdit>
#include <OlvShortcutEdit>
#include <OlvValueDelegate>

#include <QDataWidgetMapper>
#include <QItemEditorFactory>
#include <QLineEdit>
#include <QPointer>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

#include <functional>

namespace {

constexpr int animationTime = 250; // milliseconds
constexpr int hurry = 20;          // milliseconds

/** A table with a column for each kind of widget and three records, the last one of nulls. */
constexpr const char *statements[] = {
    "CREATE TABLE people (id INTEGER PRIMARY KEY, name TEXT, notify BOOLEAN, volume INTEGER, "
    "tile INTEGER, rest)",
    "INSERT INTO people VALUES (1, 'Ann', 1, 30, 0, 'first')",
    "INSERT INTO people VALUES (2, 'Bob', 0, 70, 1, 'second')",
    "INSERT INTO people VALUES (3, NULL, NULL, NULL, NULL, NULL)",
};

enum Column {
    NameColumn = 1,
    NotifyColumn,
    VolumeColumn,
    TileColumn,
    RestColumn,
};

class Database
{
public:
    Database()
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        database.setDatabaseName(QStringLiteral(":memory:"));
        m_isOpen = database.open();
        for (const char *statement : statements) {
            m_isOpen = m_isOpen && QSqlQuery().exec(QLatin1String(statement));
        }
    }
    ~Database()
    {
        QSqlDatabase::database().close();
        QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
    }
    Q_DISABLE_COPY(Database)

    bool isOpen() const
    {
        return m_isOpen;
    }

    /** What the table has, whatever a model shows of it. */
    static QVariant stored(int row, int column)
    {
        QSqlQuery query(
            QStringLiteral("SELECT * FROM people ORDER BY id LIMIT 1 OFFSET %1").arg(row));
        return query.next() ? query.value(column) : QVariant();
    }

private:
    bool m_isOpen = false;
};

/** A form on the table, with one widget of each kind. */
class Form : public QWidget
{
public:
    OlvLineEdit *name = new OlvLineEdit(this);
    OlvSwitch *notify = new OlvSwitch(this);
    OlvSlider *volume = new OlvSlider(this);
    OlvIconButton *tile =
        new OlvIconButton(QChar(u'x'), QString(), QStringLiteral("FontAwesome"), this, 40, 40);
    QLineEdit *rest = new QLineEdit(this);
    QSqlTableModel model;
    QDataWidgetMapper mapper;

    explicit Form(QDataWidgetMapper::SubmitPolicy policy = QDataWidgetMapper::AutoSubmit)
    {
        name->setGeometry(0, 0, 200, 30);
        notify->setGeometry(0, 40, 60, 20);
        volume->move(0, 70);
        tile->move(0, 110);
        rest->setGeometry(0, 160, 200, 30);
        model.setTable(QStringLiteral("people"));
        model.setEditStrategy(QSqlTableModel::OnFieldChange);
        model.select();
        mapper.setModel(&model);
        mapper.setItemDelegate(new OlvValueDelegate(&mapper));
        mapper.setSubmitPolicy(policy);
        mapper.addMapping(name, NameColumn);
        mapper.addMapping(notify, NotifyColumn);
        mapper.addMapping(volume, VolumeColumn);
        mapper.addMapping(tile, TileColumn);
        mapper.addMapping(rest, RestColumn);
        mapper.toFirst();
    }
};

void dragKnobToTheEnd(OlvSlider &slider)
{
    SliderRound *knob = knobOf(slider);
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { 1000, 10 });
    Mouse::release(knob);
}

void click(OlvIconButton &tile)
{
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&tile, &enter);
    Mouse::press(&tile, { 5, 5 });
    Mouse::release(&tile, { 5, 5 });
}

void type(OlvLineEdit &edit, const QString &text)
{
    edit.lineEdit()->setFocus();
    edit.lineEdit()->selectAll();
    QTest::keyClicks(edit.lineEdit(), text);
    QTest::keyClick(edit.lineEdit(), Qt::Key_Return);
}

using Action = std::function<void(Form &)>;

} // namespace

Q_DECLARE_METATYPE(Action)
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
    void storesTheSwitchThatStillSlides();
    void aSecondClickIsNotTakenForTheNextRecord();
    void writesNothingThatNobodyChanged_data();
    void writesNothingThatNobodyChanged();
    void overwritesWhatItCouldNotShowOnceTheUserChangesIt();
    void keepsTheTypeOfAColumn_data();
    void keepsTheTypeOfAColumn();
    void showsTheRecordAnewOnEscape();
    void triesAgainWhatTheModelRefused();
    void submitsWhatTheApplicationSets();
    void submitsASliderOnceItsDragHasEnded();
    void showsAShortcutThatCannotBeHadAsNone();
    void editsCellsOfViews();
    void forgetsEditorsThatHaveGone();
    void standsADeletionWhileItStores_data();
    void standsADeletionWhileItStores();

private:
    std::unique_ptr<Database> m_database;
};

void TestValueDelegate::init()
{
    m_database = std::make_unique<Database>();
    QVERIFY(m_database->isOpen());
}

void TestValueDelegate::cleanup()
{
    m_database.reset();
}

void TestValueDelegate::showsRecordsAtOnce()
{
    Form form;
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

    form.mapper.toNext();
    QCOMPARE(form.name->getText(), QString());
    QVERIFY(!form.notify->isChecked());
    QCOMPARE(form.volume->getValue(), QVariant(0));
    QCOMPARE(knobOf(*form.volume)->x(), 5);
    QVERIFY(!form.tile->getValue().toBool());
}

void TestValueDelegate::navigatesInAHurry()
{
    Form form;
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
    QTest::qWait(animationTime + hurry);
    QCOMPARE(form.notify->getValue(), QVariant(true));
    for (int row = 0; row < 3; ++row) {
        const bool isEmpty = row == 2;
        QCOMPARE(Database::stored(row, NameColumn).isNull(), isEmpty);
        QCOMPARE(Database::stored(row, NotifyColumn).isNull(), isEmpty);
        QCOMPARE(Database::stored(row, VolumeColumn).isNull(), isEmpty);
        QCOMPARE(Database::stored(row, TileColumn).isNull(), isEmpty);
    }
    QCOMPARE(Database::stored(0, VolumeColumn), QVariant(30));
    QCOMPARE(Database::stored(1, NotifyColumn), QVariant(0));
}

void TestValueDelegate::storesWhatTheUserDoes_data()
{
    QTest::addColumn<QDataWidgetMapper::SubmitPolicy>("policy");
    QTest::addColumn<bool>("backwards");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<Action>("act");
    QTest::addColumn<QVariant>("value");

    const struct
    {
        const char *name;
        Column column;
        Action act;
        QVariant values[3]; // in each of the records
    } widgets[] = {
        { "line edit",
          NameColumn,
          [](Form &form) { type(*form.name, QStringLiteral("Eve")); },
          { QStringLiteral("Eve"), QStringLiteral("Eve"), QStringLiteral("Eve") } },
        { "switch", NotifyColumn, [](Form &form) { releaseMouse(*form.notify); }, { 0, 1, 1 } },
        { "slider",
          VolumeColumn,
          [](Form &form) { dragKnobToTheEnd(*form.volume); },
          { 100, 100, 100 } },
        { "tile", TileColumn, [](Form &form) { click(*form.tile); }, { 1, 0, 1 } },
        { "line edit of Qt's",
          RestColumn,
          [](Form &form) {
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
    QFETCH(Action, act);
    QFETCH(QVariant, value);
    Form form(policy);
    form.show();
    QApplication::setActiveWindow(&form);
    form.mapper.setCurrentIndex(row);
    const QVariant before = Database::stored(row, column);

    act(form);
    if (policy == QDataWidgetMapper::ManualSubmit) {
        QCOMPARE(Database::stored(row, column), before);
        QVERIFY(form.mapper.submit());
    }
    QCOMPARE(Database::stored(row, column), value);

    QTest::qWait(hurry);
    backwards ? form.mapper.toPrevious() : form.mapper.toNext();
    QTest::qWait(hurry);
    backwards ? form.mapper.toNext() : form.mapper.toPrevious();
    QCOMPARE(form.model.index(row, column).data(), value);
    if (column == NotifyColumn) {
        QTest::qWait(animationTime);
    }
    QCOMPARE(Database::stored(row, column), value);
    for (int other = 0; other < 3; ++other) {
        if (other != row) {
            QVERIFY(Database::stored(other, column) != value || column == TileColumn
                    || column == NotifyColumn);
        }
    }
}

void TestValueDelegate::storesTheSwitchThatStillSlides()
{
    Form form;
    releaseMouse(*form.notify);
    QTest::qWait(hurry);
    QCOMPARE(form.notify->getValue(), QVariant(true)); // it goes on to slide
    QVERIFY(!form.notify->isChecked());
    form.mapper.toNext();
    QVERIFY(!form.notify->isChecked());
    QCOMPARE(knobOf(*form.notify)->x(), 0);
    QTest::qWait(animationTime + hurry);
    QCOMPARE(Database::stored(0, NotifyColumn), QVariant(0));
    QCOMPARE(Database::stored(1, NotifyColumn), QVariant(0));
    form.mapper.toPrevious();
    QVERIFY(!form.notify->isChecked());
}

void TestValueDelegate::aSecondClickIsNotTakenForTheNextRecord()
{
    Form form;
    releaseMouse(*form.notify);
    releaseMouse(*form.notify); // before the first step: the switch would flip back and forth
    form.mapper.toNext();
    QTest::qWait(3 * animationTime);
    QCOMPARE(form.notify->getValue(), QVariant(false));
    QCOMPARE(Database::stored(1, NotifyColumn), QVariant(0));
}

void TestValueDelegate::writesNothingThatNobodyChanged_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("null") << QVariant();
    QTest::newRow("text") << QVariant(QStringLiteral("no such thing"));
    QTest::newRow("beyond") << QVariant(1234);
    QTest::newRow("below") << QVariant(-5);
    QTest::newRow("fraction") << QVariant(12.5);
    QTest::newRow("bytes") << QVariant(QByteArray("\xff\x00\x80", 3));
}

void TestValueDelegate::writesNothingThatNobodyChanged()
{
    QFETCH(QVariant, stored);
    QStandardItemModel model(2, 5);
    for (int column = 0; column < 5; ++column) {
        model.setData(model.index(0, column), stored, Qt::EditRole);
        model.setData(model.index(1, column), 50, Qt::EditRole);
    }
    OlvLineEdit line;
    OlvSwitch toggle;
    OlvSlider slider;
    OlvButton button;
    OlvShortcutEdit shortcut(nullptr);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
    OlvWidget *const widgets[] = { &line, &toggle, &slider, &button, &shortcut };
    for (int column = 0; column < 5; ++column) {
        mapper.addMapping(widgets[column], column);
    }
    for (const int row : { 0, 1, 0 }) {
        mapper.setCurrentIndex(row);
        QVERIFY(mapper.submit());
    }
    for (int column = 0; column < 5; ++column) {
        QCOMPARE(model.index(0, column).data(Qt::EditRole), stored);
        QCOMPARE(model.index(1, column).data(Qt::EditRole), QVariant(50));
    }
    QCOMPARE(toggle.isChecked(), stored.toInt() != 0);
    QCOMPARE(slider.getValue().toInt(), qBound(0, qRound(stored.toDouble()), 100));
}

void TestValueDelegate::overwritesWhatItCouldNotShowOnceTheUserChangesIt()
{
    QSqlQuery().exec(QStringLiteral("UPDATE people SET notify = 'perhaps', volume = 'loud'"));
    Form form;
    QVERIFY(!form.notify->isChecked());
    QCOMPARE(form.volume->getValue(), QVariant(0));
    releaseMouse(*form.notify);
    QCOMPARE(Database::stored(0, NotifyColumn).toInt(), 1);
    QCOMPARE(Database::stored(0, VolumeColumn), QVariant(QStringLiteral("loud")));
    dragKnobToTheEnd(*form.volume);
    QCOMPARE(Database::stored(0, VolumeColumn).toInt(), 100);
    QCOMPARE(Database::stored(1, VolumeColumn), QVariant(QStringLiteral("loud")));
}

void TestValueDelegate::keepsTheTypeOfAColumn_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::newRow("int") << QVariant(1) << QVariant(0);
    QTest::newRow("bool") << QVariant(true) << QVariant(false);
    QTest::newRow("text") << QVariant(QStringLiteral("true")) << QVariant(QStringLiteral("false"));
    QTest::newRow("real") << QVariant(1.0) << QVariant(0.0);
    QTest::newRow("none") << QVariant() << QVariant(true);
}

void TestValueDelegate::keepsTheTypeOfAColumn()
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

void TestValueDelegate::showsTheRecordAnewOnEscape()
{
    Form form;
    form.show();
    QApplication::setActiveWindow(&form);
    QLineEdit *text = form.name->lineEdit();
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("x"));
    QCOMPARE(form.name->getText(), QStringLiteral("Annx"));
    QTest::keyClick(text, Qt::Key_Escape);
    QCOMPARE(form.name->getText(), QStringLiteral("Ann"));
    QTest::keyClick(text, Qt::Key_Return);
    QCOMPARE(Database::stored(0, NameColumn), QVariant(QStringLiteral("Ann")));
}

void TestValueDelegate::triesAgainWhatTheModelRefused()
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

void TestValueDelegate::submitsWhatTheApplicationSets()
{
    Form form;
    form.notify->setChecked(false);
    QCOMPARE(Database::stored(0, NotifyColumn), QVariant(0));
    form.volume->setSliderPosition(45);
    QCOMPARE(Database::stored(0, VolumeColumn), QVariant(45));
    form.tile->setValue(true);
    QCOMPARE(Database::stored(0, TileColumn), QVariant(1));
}

void TestValueDelegate::submitsASliderOnceItsDragHasEnded()
{
    Form form;
    SliderRound *knob = knobOf(*form.volume);
    Mouse::press(knob, { 10, 10 });
    for (const int x : { 20, 30, 1000 }) {
        Mouse::move(knob, { qreal(x), 10 });
        QCOMPARE(Database::stored(0, VolumeColumn), QVariant(30));
    }
    Mouse::release(knob);
    QCOMPARE(Database::stored(0, VolumeColumn), QVariant(100));
}

void TestValueDelegate::showsAShortcutThatCannotBeHadAsNone()
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

void TestValueDelegate::editsCellsOfViews()
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
    const QPointer<OlvLineEdit> again(view.findChild<OlvLineEdit *>());
    QTest::keyClicks(again->lineEdit(), QStringLiteral("thrown away"));
    QTest::keyClick(again->lineEdit(), Qt::Key_Escape);
    QTRY_VERIFY(!again);
    QCOMPARE(model.index(0, 2).data(), QVariant(QStringLiteral("er")));
}

void TestValueDelegate::forgetsEditorsThatHaveGone()
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

void TestValueDelegate::standsADeletionWhileItStores_data()
{
    QTest::addColumn<Action>("act");
    QTest::newRow("line edit") << Action(
        [](Form &form) { type(*form.name, QStringLiteral("Eve")); });
    QTest::newRow("switch") << Action([](Form &form) { releaseMouse(*form.notify); });
    QTest::newRow("slider") << Action([](Form &form) { dragKnobToTheEnd(*form.volume); });
}

void TestValueDelegate::standsADeletionWhileItStores()
{
    QFETCH(Action, act);
    Form form;
    const QObjectList widgets = form.children();
    connect(&form.model, &QAbstractItemModel::dataChanged, this, [&] {
        for (QWidget *widget :
             { static_cast<QWidget *>(form.name), static_cast<QWidget *>(form.notify),
               static_cast<QWidget *>(form.volume), static_cast<QWidget *>(form.tile) }) {
            delete widget;
        }
        form.model.disconnect(this);
    });
    act(form);
    QVERIFY(form.children().size() < widgets.size());
}

QTEST_MAIN(TestValueDelegate)
#include "tst_valuedelegate.moc"
