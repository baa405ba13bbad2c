// SPDX-License-Identifier: MIT
#pragma once

#include "mouse.h"

#include <OlvButton>
#include <OlvIconButton>
#include <OlvLineEdit>
#include <OlvShortcutEdit>
#include <OlvSlider>
#include <OlvSwitch>
#include <OlvValueDelegate>

#include <QDataWidgetMapper>
#include <QLineEdit>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QTest>

#include <functional>

/** A table with a column for each kind of widget and three records, the last one of nulls. */
constexpr const char *recordStatements[] = {
    ("CREATE TABLE people (id INTEGER PRIMARY KEY, name TEXT, notify BOOLEAN, volume INTEGER, "
     "tile INTEGER, starred BOOLEAN, keys TEXT, rest)"),
    "INSERT INTO people VALUES (1, 'Ann', 1, 30, 0, 0, 'Ctrl+F5', 'first')",
    "INSERT INTO people VALUES (2, 'Bob', 0, 70, 1, 1, 'no keys', 'second')",
    "INSERT INTO people VALUES (3, NULL, NULL, NULL, NULL, NULL, NULL, NULL)",
};

enum Column {
    NameColumn = 1,
    NotifyColumn,
    VolumeColumn,
    TileColumn,
    StarredColumn,
    KeysColumn,
    RestColumn,
    ColumnCount,
};

class RecordDatabase
{
public:
    RecordDatabase()
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        database.setDatabaseName(QStringLiteral(":memory:"));
        m_isOpen = database.open();
        for (const char *statement : recordStatements) {
            m_isOpen = m_isOpen && QSqlQuery().exec(QLatin1String(statement));
        }
    }
    ~RecordDatabase()
    {
        QSqlDatabase::database().close();
        QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
    }
    Q_DISABLE_COPY(RecordDatabase)

    bool isOpen() const
    {
        return m_isOpen;
    }

    /** All that the table has. */
    static QVector<QVariantList> stored()
    {
        QVector<QVariantList> rows;
        QSqlQuery query(QStringLiteral("SELECT * FROM people ORDER BY id"));
        while (query.next()) {
            QVariantList row;
            for (int column = 0; column < ColumnCount; ++column) {
                row.append(query.value(column));
            }
            rows.append(row);
        }
        return rows;
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
class RecordForm : public QWidget
{
public:
    OlvLineEdit *name = new OlvLineEdit(this);
    OlvSwitch *notify = new OlvSwitch(this);
    OlvSlider *volume = new OlvSlider(this);
    OlvIconButton *tile =
        new OlvIconButton(QChar(u'x'), QString(), QStringLiteral("FontAwesome"), this, 40, 40);
    OlvButton *starred = new OlvButton(QStringLiteral("Star"), this);
    OlvShortcutEdit *keys = new OlvShortcutEdit(this);
    QLineEdit *rest = new QLineEdit(this);
    QSqlTableModel model;
    QDataWidgetMapper mapper;

    explicit RecordForm(QDataWidgetMapper::SubmitPolicy policy = QDataWidgetMapper::AutoSubmit)
    {
        name->setGeometry(0, 0, 200, 30);
        notify->setGeometry(0, 40, 60, 20);
        volume->move(0, 70);
        tile->move(0, 110);
        rest->setGeometry(0, 160, 200, 30);
        starred->setGeometry(0, 200, 100, 30);
        keys->setGeometry(0, 240, 200, 30);
        // a button's clicks do not change its value: the application does
        connect(starred, &OlvButton::clicked, this,
                [this] { starred->setValue(!starred->getValue().toBool()); });
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
        mapper.addMapping(starred, StarredColumn);
        mapper.addMapping(keys, KeysColumn);
        mapper.addMapping(rest, RestColumn);
        mapper.toFirst();
    }
};

inline void click(OlvWidget &button)
{
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&button, &enter);
    Mouse::press(&button, { 5, 5 });
    Mouse::release(&button, { 5, 5 });
}

inline void type(OlvLineEdit &edit, const QString &text)
{
    edit.lineEdit()->setFocus();
    edit.lineEdit()->selectAll();
    QTest::keyClicks(edit.lineEdit(), text);
    QTest::keyClick(edit.lineEdit(), Qt::Key_Return);
}

/** What a user does to a form, in the rows of a test. */
using RecordAction = std::function<void(RecordForm &)>;

Q_DECLARE_METATYPE(RecordAction)
