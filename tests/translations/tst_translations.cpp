// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvControlBar>
#include <OlvGridLayout>
#include <OlvLineEdit>
#include <OlvShortcutEdit>
#include <OlvSimpleIconButton>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

namespace {

/** Every text of the library's own, as a window shows and tells it. */
class Window : public QWidget
{
public:
    OlvControlBar *bar = new OlvControlBar(QList<QChar>(), this,
                                           { QStringLiteral("Settings"), QStringLiteral("Help") });
    QWidget *viewport = new QWidget(this);
    OlvGridLayout *grid = new OlvGridLayout(viewport);
    OlvLineEdit *password = new OlvLineEdit(this);
    OlvShortcutEdit *shortcut = new OlvShortcutEdit(this);

    QStringList texts() const
    {
        QStringList result;
        for (const QPushButton *button : bar->findChildren<QPushButton *>()) {
            result << button->toolTip();
        }
        result << grid->findChild<QLabel *>()->text() << shortcut->toolTip();
        auto *button = password->findChild<OlvSimpleIconButton *>();
        result << QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name);
        return result;
    }
};

QStringList sourceTexts()
{
    return { QStringLiteral("Settings"), QStringLiteral("Help"),
             QStringLiteral("悬浮"),     QStringLiteral("置底"),
             QStringLiteral("置顶"),     QStringLiteral("最小化"),
             QStringLiteral("最大化"),   QStringLiteral("关闭"),
             QStringLiteral("空"),       QStringLiteral("请直接在键盘上输入新的快捷键"),
             QStringLiteral("显示密码") };
}

/** Sets whatever language the library has a catalogue of, as the guide says. */
class Language
{
public:
    explicit Language(const QLocale &locale)
        : m_isLoaded(m_translator.load(locale, QStringLiteral("olvwidgets"), QStringLiteral("_"),
                                       QStringLiteral(OLV_TRANSLATIONS)))
    {
        QCoreApplication::installTranslator(&m_translator);
        QCoreApplication::processEvents();
    }
    ~Language()
    {
        QCoreApplication::removeTranslator(&m_translator);
        QCoreApplication::processEvents();
    }
    Q_DISABLE_COPY(Language)

    bool isLoaded() const
    {
        return m_isLoaded;
    }

private:
    QTranslator m_translator;
    bool m_isLoaded;
};

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areChineseWithoutATranslator();
    void areInTheLanguageOfTheApplication_data();
    void areInTheLanguageOfTheApplication();
    void areChineseWhereThatIsTheFirstLanguage();
    void followAnotherLanguage();
    void leaveWhatTheApplicationSet();
    void nameTheButtonThatRestores();
};

void TestTranslations::areChineseWithoutATranslator()
{
    QCOMPARE(Window().texts(), sourceTexts());
}

void TestTranslations::areInTheLanguageOfTheApplication_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("close");
    QTest::newRow("English") << QLocale(QLocale::English) << QStringLiteral("Close");
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Austria)
                            << QStringLiteral("Schließen");
    QTest::newRow("Arabic") << QLocale(QLocale::Arabic) << QStringLiteral("إغلاق");
}

void TestTranslations::areInTheLanguageOfTheApplication()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, close);
    const Language language(locale);
    QVERIFY(language.isLoaded());
    const QStringList texts = Window().texts();
    const QStringList sources = sourceTexts();
    QCOMPARE(texts.size(), sources.size());
    QCOMPARE(texts.mid(0, 2), sources.mid(0, 2)); // the application's own
    for (int i = 2; i < texts.size(); ++i) {
        QVERIFY2(!texts.at(i).isEmpty() && texts.at(i) != sources.at(i), qPrintable(sources.at(i)));
    }
    QCOMPARE(texts.at(7), close);
}

/** Without a catalogue Qt would load that of the next language which the desktop names. */
void TestTranslations::areChineseWhereThatIsTheFirstLanguage()
{
    for (const QLocale::Country country : { QLocale::China, QLocale::Taiwan }) {
        const Language language{ QLocale(QLocale::Chinese, country) };
        QVERIFY(language.isLoaded());
        QCOMPARE(Window().texts(), sourceTexts());
    }
}

void TestTranslations::followAnotherLanguage()
{
    Window window;
    {
        const Language language{ QLocale(QLocale::German) };
        QCOMPARE(window.texts().at(7), QStringLiteral("Schließen"));
        QCOMPARE(window.texts().at(8), QStringLiteral("Leer"));
        QCOMPARE(window.texts(), Window().texts());
    }
    QCOMPARE(window.texts(), sourceTexts());
}

void TestTranslations::leaveWhatTheApplicationSet()
{
    Window window;
    window.shortcut->setToolTip(QStringLiteral("mine"));
    const auto buttons = window.bar->findChildren<QPushButton *>();
    buttons.last()->setToolTip(QString());
    window.grid->findChild<QLabel *>()->setText(QStringLiteral("nothing yet"));
    const Language language{ QLocale(QLocale::English) };
    QCOMPARE(window.shortcut->toolTip(), QStringLiteral("mine"));
    QCOMPARE(buttons.last()->toolTip(), QString());
    QCOMPARE(window.grid->findChild<QLabel *>()->text(), QStringLiteral("nothing yet"));
    QCOMPARE(window.texts().at(6), QStringLiteral("Maximise"));
}

void TestTranslations::nameTheButtonThatRestores()
{
    Window window;
    auto *maximise = window.bar->findChildren<QPushButton *>().at(6);
    maximise->click();
    QCOMPARE(maximise->toolTip(), QStringLiteral("还原"));
    const Language language{ QLocale(QLocale::English) };
    QCOMPARE(maximise->toolTip(), QStringLiteral("Restore"));
    maximise->click();
    QCOMPARE(maximise->toolTip(), QStringLiteral("Maximise"));
}

ADD_TEST(TestTranslations, QApplication)
#include "tst_translations.moc"
