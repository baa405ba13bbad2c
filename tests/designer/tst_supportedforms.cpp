// SPDX-License-Identifier: MIT
// A form that was drawn in Designer, loaded and given a form support in one line.
#include "forms.h"
#include "plugin.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

/** The rows of the form: a label, and what Designer drops for a class. */
struct Row
{
    const char *label;
    const char *className;
    const char *name;
};

const QVector<Row> &rows()
{
    static const QVector<Row> all{
        { "&Name", "OlvLineEdit", "name" },         { "S&hortcut", "OlvShortcutEdit", "shortcut" },
        { "&Wi-Fi", "OlvSwitch", "wifi" },          { "&Volume", "OlvSlider", "volume" },
        { "Sta&r", "OlvSimpleIconButton", "star" }, { "&Mail", "OlvIconButton", "mail" },
        { "&Save", "OlvButton", "save" },
    };
    return all;
}

bool isInOrderOfTabs(const QString &name)
{
    return name == QLatin1String("save") || name == QLatin1String("name")
        || name == QLatin1String("volume");
}

/** What makes Qt heed an order of tabs that names a widget before the form has a support. */
QString focusPolicy()
{
    return QStringLiteral("<property name=\"focusPolicy\"><enum>Qt::StrongFocus</enum></property>");
}

/** As Designer saves it: a form layout, labels with buddies, and an order of tabs. */
QString drawnForm()
{
    QString items;
    for (int i = 0; i < rows().size(); ++i) {
        const Row &row = rows().at(i);
        const QString name = QString::fromLatin1(row.name);
        const QString className = QString::fromLatin1(row.className);
        const QString initialName = className.at(0).toLower() + className.mid(1);
        QString widget = elementOf(pluginWidget(className)->domXml());
        widget.replace(QStringLiteral("name=\"%1\">").arg(initialName),
                       QStringLiteral("name=\"%1\">").arg(name)
                           + (isInOrderOfTabs(name) ? focusPolicy() : QString()));
        items += QStringLiteral("<item row=\"%1\" column=\"0\"><widget class=\"QLabel\" "
                                "name=\"%2Label\"><property name=\"text\"><string>%3</string>"
                                "</property><property name=\"buddy\"><cstring>%2</cstring>"
                                "</property></widget></item>"
                                "<item row=\"%1\" column=\"1\">%4</item>")
                     .arg(QString::number(i), name, QString::fromLatin1(row.label).toHtmlEscaped(),
                          widget);
    }
    return QStringLiteral("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\">"
                          "<layout class=\"QFormLayout\" name=\"rows\">%1</layout></widget>"
                          "<tabstops><tabstop>save</tabstop><tabstop>name</tabstop>"
                          "<tabstop>volume</tabstop></tabstops></ui>")
        .arg(items);
}

} // namespace

class TestSupportedForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void haveTheNaturalSizes();
    void followTheOrderOfTabs();
    void followTheMnemonics();
    void takeKeys();
    void followTheirFontWhereTheMinimumIsReset();

private:
    template <class Widget = QWidget> Widget *find(const char *name) const
    {
        return m_form->findChild<Widget *>(QLatin1String(name));
    }
    QWidget *textOf(const char *name) const
    {
        return find<OlvLineEdit>(name)->lineEdit();
    }

    std::unique_ptr<QWidget> m_window;
    QWidget *m_form = nullptr;
};

void TestSupportedForms::init()
{
    m_window = std::make_unique<QWidget>();
    m_form = loadForm(drawnForm(), m_window.get()).release(); // its parent deletes it
    QVERIFY(m_form);
    for (const Row &row : rows()) {
        QVERIFY2(find(row.name), row.name);
    }
    new OlvFormSupport(m_form);
    m_window->show();
    m_form->resize(m_form->sizeHint());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestSupportedForms::cleanup()
{
    m_window.reset();
}

/** Designer's figures are the same as those of a widget that is made in code. */
void TestSupportedForms::haveTheNaturalSizes()
{
    for (const Row &row : rows()) {
        QWidget *widget = find(row.name);
        const QSize natural = OlvFormSupport::naturalSize(widget);
        QCOMPARE(widget->minimumSize(), natural);
        QVERIFY2(widget->width() >= natural.width() && widget->height() == natural.height(),
                 row.name);
    }
}

void TestSupportedForms::followTheOrderOfTabs()
{
    find("save")->setFocus();
    for (QWidget *stop : { textOf("name"), find("volume") }) {
        QTest::keyClick(m_window.get(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), stop);
    }
}

void TestSupportedForms::followTheMnemonics()
{
    find("save")->setFocus();
    QTest::keyClick(m_window.get(), Qt::Key_N, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), textOf("name"));
    QTest::keyClick(m_window.get(), Qt::Key_W, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), find("wifi"));
}

void TestSupportedForms::takeKeys()
{
    QTest::keyClick(find("volume"), Qt::Key_End);
    QCOMPARE(find<OlvSlider>("volume")->getValue(), QVariant(100));
    QTest::keyClick(find("wifi"), Qt::Key_Space);
    QVERIFY(find<OlvSwitch>("wifi")->isChecked());
    const QSignalSpy clicked(find<OlvButton>("save"), &OlvButton::clicked);
    QTest::keyClick(find("save"), Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
}

/** A minimum that the form sets is the application's, which a support leaves. */
void TestSupportedForms::followTheirFontWhereTheMinimumIsReset()
{
    const QSize drawn = find("wifi")->minimumSize();
    find("volume")->setMinimumSize(0, 0);
    m_form->setFont(QFont(QStringLiteral("Sans"), 30));
    QCOMPARE(find("wifi")->minimumSize(), drawn);
    QCOMPARE(find("volume")->minimumSize(), OlvFormSupport::naturalSize(find("volume")));
    QVERIFY(find("volume")->minimumWidth() > 200);
}

ADD_TEST(TestSupportedForms, QApplication)
#include "tst_supportedforms.moc"
