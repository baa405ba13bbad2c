// SPDX-License-Identifier: MIT
// Which colour is painted where a style sheet of the application's has one for a text.
#include "contrast.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

class TestTextSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        qApp->setStyleSheet(QString());
    }
    void leavesTheColorOfAStyleSheet_data();
    void leavesTheColorOfAStyleSheet();
};

void TestTextSheets::leavesTheColorOfAStyleSheet_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<bool>("isOfText");
    QTest::addColumn<QColor>("color");
    QTest::newRow("of the application")
        << "QLineEdit { color: #ffff00; }" << false << QColor(255, 255, 0);
    QTest::newRow("of its kind") << "OlvLineEdit QLineEdit { color: #c0ffc0; }" << false
                                 << QColor(192, 255, 192);
    QTest::newRow("of the text") << "color: #ff8080;" << true << QColor(255, 128, 128);
}

/** The palette is readable, but a style sheet paints with the colour that it has itself. */
void TestTextSheets::leavesTheColorOfAStyleSheet()
{
    QFETCH(QString, sheet);
    QFETCH(bool, isOfText);
    QFETCH(QColor, color);
    WidgetForm form;
    form.name->setMinimumSize(200, 32);
    form.name->setText(QStringLiteral("█ █ █"));
    const auto paints = [&](const QColor &wanted) {
        return Measured::colors(form.name->lineEdit()->grab().toImage()).contains(wanted.rgb());
    };
    auto *support = new OlvFormSupport(&form);
    form.show();
    QVERIFY(paints(Qt::black));
    const auto setSheet = [&](const QString &text) {
        if (isOfText) {
            form.name->lineEdit()->setStyleSheet(text);
        } else {
            qApp->setStyleSheet(text);
        }
    };
    for (int i = 0; i < 2; ++i) {
        setSheet(sheet);
        QVERIFY(paints(color));
        QVERIFY(!paints(Qt::black));
        setSheet(QString());
        QTRY_VERIFY(paints(Qt::black));
        QVERIFY(!paints(color));
    }
    setSheet(sheet);
    QVERIFY(paints(color));
    delete support;
    QVERIFY(paints(color));
}

ADD_TEST(TestTextSheets, QApplication)
#include "tst_textsheets.moc"
