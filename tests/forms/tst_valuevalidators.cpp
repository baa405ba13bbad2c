// SPDX-License-Identifier: MIT
// Texts that a validator refuses: an OlvLineEdit holds them back where a QLineEdit does.
#include "testprogram.h"

#include <OlvFormSupport>
#include <OlvLineEdit>
#include <OlvValueDelegate>

#include <QApplication>
#include <QDataWidgetMapper>
#include <QIntValidator>
#include <QItemEditorFactory>
#include <QLineEdit>
#include <QPointer>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

#include <utility>

namespace {

enum class Finish { Tab, Backtab, Enter, FocusOut };

/** Takes numbers from 10 to 99, and makes others that if it is told to what. */
class Validator : public QIntValidator
{
public:
    Validator(QString fixed, QObject *parent)
        : QIntValidator(10, 99, parent)
        , m_fixed(std::move(fixed))
    { }
    void fixup(QString &text) const override
    {
        if (!m_fixed.isEmpty()) {
            text = m_fixed;
        }
    }

private:
    const QString m_fixed;
};

QWidget *newEditor(bool isOfTheLibrary)
{
    if (isOfTheLibrary) {
        return new OlvLineEdit;
    }
    return new QLineEdit;
}

QLineEdit *textOf(QWidget *editor)
{
    auto *line = qobject_cast<OlvLineEdit *>(editor);
    return line ? line->lineEdit() : qobject_cast<QLineEdit *>(editor);
}

void finish(QLineEdit *text, Finish how, QWidget *next)
{
    switch (how) {
    case Finish::Tab:
        QTest::keyClick(text, Qt::Key_Tab);
        break;
    case Finish::Backtab:
        QTest::keyClick(text, Qt::Key_Backtab, Qt::ShiftModifier);
        break;
    case Finish::Enter:
        QTest::keyClick(text, Qt::Key_Return);
        break;
    case Finish::FocusOut:
        next->setFocus();
        break;
    }
    QCoreApplication::processEvents(); // Qt submits at Enter later
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/** Types into a text that a record is shown in; gives what came of it. */
QStringList playInMapper(bool isOfTheLibrary, const QString &typed, const QString &fixed,
                         Finish how)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("42"));
    QStringList record; // before the form, which closes its editor when it goes
    QWidget form;
    QLineEdit before(&form);
    QWidget *editor = newEditor(isOfTheLibrary);
    editor->setParent(&form);
    QLineEdit after(&form);
    QLineEdit *text = textOf(editor);
    text->setValidator(new Validator(fixed, text));
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.addMapping(editor, 0, isOfTheLibrary ? QByteArray() : QByteArray("text"));
    mapper.toFirst();
    new OlvFormSupport(&form, OlvFormSupport::Keyboard); // or Shift+Tab goes to the line's frame
    QObject::connect(mapper.itemDelegate(), &QAbstractItemDelegate::closeEditor, &form,
                     [&](QWidget *, int hint) { record << QString::number(hint); });
    form.show();
    QApplication::setActiveWindow(&form);
    text->setFocus();
    text->selectAll();
    QTest::keyClicks(text, typed);
    finish(text, how, &after);
    record << (text->hasFocus() ? QStringLiteral("focus") : QStringLiteral("no focus"));
    return record << text->text() << model.index(0, 0).data().toString();
}

/** Types into a cell of a view; gives what came of it. */
QStringList playInCell(bool isOfTheLibrary, const QString &typed, const QString &fixed, Finish how)
{
    QStandardItemModel model(1, 3);
    for (int column = 0; column < 3; ++column) {
        model.setData(model.index(0, column), QStringLiteral("42"));
    }
    QItemEditorFactory factory;
    if (isOfTheLibrary) {
        factory.registerEditor(QVariant::String, new QStandardItemEditorCreator<OlvLineEdit>);
    } else {
        factory.registerEditor(QVariant::String, new QStandardItemEditorCreator<QLineEdit>);
    }
    OlvValueDelegate delegate;
    QStringList record; // before the view, which closes its editor when it goes
    delegate.setItemEditorFactory(&factory);
    QTableView view;
    view.setModel(&model);
    view.setItemDelegate(&delegate);
    view.resize(600, 200);
    view.show();
    QApplication::setActiveWindow(&view);
    view.setCurrentIndex(model.index(0, 1));
    QObject::connect(&delegate, &QAbstractItemDelegate::commitData, &view,
                     [&](QWidget *) { record << QStringLiteral("commit"); });
    QObject::connect(&delegate, &QAbstractItemDelegate::closeEditor, &view,
                     [&](QWidget *, int hint) { record << QString::number(hint); });
    view.edit(model.index(0, 1));
    const QPointer<QLineEdit> text(textOf(view.indexWidget(model.index(0, 1))));
    if (!text) {
        return { QStringLiteral("no editor") };
    }
    text->setValidator(new Validator(fixed, text));
    text->selectAll();
    QTest::keyClicks(text, typed);
    finish(text, how, &view);
    record.removeDuplicates(); // a line commits its text at Enter at once, and again with Qt
    record << (text ? text->text() : QStringLiteral("closed"));
    record << QString::number(view.currentIndex().column());
    return record << model.index(0, 1).data().toString();
}

} // namespace

Q_DECLARE_METATYPE(Finish)

class TestValueValidators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsBackWhatQtHoldsBack_data();
    void holdsBackWhatQtHoldsBack();
    void keepsTheTextWhileTheFocusStaysInTheLine();
    void standsADeletionByAFixUp_data();
    void standsADeletionByAFixUp();
};

void TestValueValidators::holdsBackWhatQtHoldsBack_data()
{
    QTest::addColumn<bool>("isInCell");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("fixed");
    QTest::addColumn<Finish>("how");
    QTest::addColumn<QString>("stored");
    const struct
    {
        const char *name;
        const char *typed;
        const char *fixed;
        const char *stored;
    } texts[] = {
        { "acceptable", "57", "", "57" },
        { "refused", "5", "", "42" },
        { "fixed", "5", "50", "50" },
        { "fixed in vain", "5", "7", "42" },
    };
    const struct
    {
        const char *name;
        Finish how;
    } ways[] = {
        { "Tab", Finish::Tab },
        { "Shift+Tab", Finish::Backtab },
        { "Enter", Finish::Enter },
        { "focus out", Finish::FocusOut },
    };
    for (const bool isInCell : { false, true }) {
        for (const auto &text : texts) {
            for (const auto &way : ways) {
                QTest::addRow("%s, %s, %s", isInCell ? "cell" : "mapper", text.name, way.name)
                    << isInCell << QString::fromLatin1(text.typed)
                    << QString::fromLatin1(text.fixed) << way.how
                    << QString::fromLatin1(text.stored);
            }
        }
    }
}

void TestValueValidators::holdsBackWhatQtHoldsBack()
{
    QFETCH(bool, isInCell);
    QFETCH(QString, typed);
    QFETCH(QString, fixed);
    QFETCH(Finish, how);
    QFETCH(QString, stored);
    const auto play = isInCell ? playInCell : playInMapper;
    const QStringList ofQt = play(false, typed, fixed, how);
    QCOMPARE(play(true, typed, fixed, how), ofQt);
    QCOMPARE(ofQt.last(), stored);
}

void TestValueValidators::keepsTheTextWhileTheFocusStaysInTheLine()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("42"));
    OlvLineEdit line;
    line.lineEdit()->setValidator(new Validator(QStringLiteral("50"), &line));
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.addMapping(&line, 0);
    mapper.toFirst();
    line.show();
    QApplication::setActiveWindow(&line);
    line.setFocus();
    line.setText(QStringLiteral("5"));
    line.lineEdit()->setFocus(); // the line's own focus goes to its text
    QCOMPARE(line.getText(), QStringLiteral("5"));
    QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("42"));
}

void TestValueValidators::standsADeletionByAFixUp_data()
{
    QTest::addColumn<Finish>("how");
    QTest::newRow("Tab") << Finish::Tab;
    QTest::newRow("Enter") << Finish::Enter;
}

void TestValueValidators::standsADeletionByAFixUp()
{
    /** Deletes its line when it is to correct the text. */
    class Deleting : public QValidator
    {
    public:
        explicit Deleting(OlvLineEdit *line)
            : m_line(line)
        { }
        State validate(QString & /*text*/, int & /*cursor*/) const override
        {
            return Intermediate;
        }
        void fixup(QString & /*text*/) const override
        {
            delete m_line;
        }

    private:
        const QPointer<OlvLineEdit> m_line;
    };
    QFETCH(Finish, how);
    QStandardItemModel model(1, 1);
    QWidget form;
    const QPointer<OlvLineEdit> line(new OlvLineEdit(&form));
    const Deleting validator(line);
    line->lineEdit()->setValidator(&validator);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.setItemDelegate(new OlvValueDelegate(&mapper));
    mapper.addMapping(line, 0);
    mapper.toFirst();
    form.show();
    QApplication::setActiveWindow(&form);
    QTest::keyClicks(line->lineEdit(), QStringLiteral("5"));
    // sent by hand, since QTest goes on to send the release to the line that has gone
    QKeyEvent press(QEvent::KeyPress, how == Finish::Tab ? Qt::Key_Tab : Qt::Key_Return,
                    Qt::NoModifier);
    QApplication::sendEvent(line->lineEdit(), &press);
    QVERIFY(!line);
    QVERIFY(!model.index(0, 0).data().isValid());
}

ADD_TEST(TestValueValidators, QApplication)
#include "tst_valuevalidators.moc"
