// SPDX-License-Identifier: MIT
#include "pixels.h"

#include <OlvShortcutEdit>

#include <QKeyEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <utility>

namespace {

/** A shortcut that writes down what becomes of it, and is active when it is told to be. */
class FakeShortcut : public OlvShortcut
{
public:
    explicit FakeShortcut(const QString &name, bool grantable = true)
        : OlvShortcut(Qt::Key_A, false, false, false, false)
        , m_name(name)
        , m_grantable(grantable)
    { }
    ~FakeShortcut() override
    {
        record().append(m_name + QStringLiteral(" deleted"));
    }
    bool active() override
    {
        record().append(m_name + QStringLiteral(" active"));
        if (onActive) {
            onActive();
        }
        return m_grantable;
    }
    void destroy() override
    {
        record().append(m_name + QStringLiteral(" destroyed"));
        if (onDestroy) {
            onDestroy();
        }
    }
    QString toString() override
    {
        return m_name;
    }
    static QStringList &record()
    {
        static QStringList lines;
        return lines;
    }

    std::function<void()> onActive;
    std::function<void()> onDestroy;

private:
    QString m_name;
    bool m_grantable;
};

QStringList takeRecord()
{
    QStringList lines;
    lines.swap(FakeShortcut::record());
    return lines;
}

qulonglong addressOf(const OlvShortcut *shortcut)
{
    return reinterpret_cast<qulonglong>(shortcut);
}

/** The fields of the capture record, in their order, as the property's address shows them. */
struct Capture
{
    bool ctrl;
    bool shift;
    bool alt;
    bool meta;
    int key;
    bool recording;
};

Capture captureOf(const OlvShortcutEdit &edit)
{
    return *reinterpret_cast<const Capture *>(edit.property("Temp").toULongLong());
}

QString textOf(const Capture &capture)
{
    return QStringLiteral("%1%2%3%4 %5 %6")
        .arg(capture.ctrl ? QStringLiteral("c") : QString(),
             capture.shift ? QStringLiteral("s") : QString(),
             capture.alt ? QStringLiteral("a") : QString(),
             capture.meta ? QStringLiteral("m") : QString())
        .arg(capture.key == Qt::Key_unknown ? -1 : capture.key)
        .arg(capture.recording ? QStringLiteral("recording") : QStringLiteral("idle"));
}

int keyOf(const QString &name)
{
    static const QHash<QString, int> keys{
        { QStringLiteral("ctrl"), Qt::Key_Control },  { QStringLiteral("shift"), Qt::Key_Shift },
        { QStringLiteral("alt"), Qt::Key_Alt },       { QStringLiteral("meta"), Qt::Key_Meta },
        { QStringLiteral("esc"), Qt::Key_Escape },    { QStringLiteral("back"), Qt::Key_Backspace },
        { QStringLiteral("super"), Qt::Key_Super_L },
    };
    return keys.value(name, name.at(0).toUpper().unicode());
}

/** Plays "+ctrl +a -a": presses and releases. */
void play(OlvShortcutEdit &edit, const QString &events)
{
    const QStringList names = events.split(QLatin1Char(' '));
    for (const QString &name : names) {
        const bool isPress = name.at(0) == QLatin1Char('+');
        QKeyEvent event(isPress ? QEvent::KeyPress : QEvent::KeyRelease, keyOf(name.mid(1)),
                        Qt::NoModifier);
        QCoreApplication::sendEvent(&edit, &event);
    }
}

} // namespace

class TestShortcutEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void startsEmptyWithItsDefaults();
    void hasASignalAndTwoSlotsInOrder();
    void notesKeys_data();
    void notesKeys();
    void takesKeyEventsForItself();
    void triesEveryCombinationThatIsReleased();
    void takesAShortcutOver();
    void replacesTheOneBefore();
    void deletesOneThatCannotBeHad();
    void constructorTakesAShortcut();
    void valueIsTextOutAndAddressIn();
    void ignoresWhatIsNoShortcut();
    void keepsTheOneItHoldsAlready();
    void clearingDeletesWithoutDestroying();
    void destructorDeletesWithoutDestroying();
    void survivesSlotsThatDoAnything_data();
    void survivesSlotsThatDoAnything();
    void survivesShortcutsThatDeleteIt();
    void survivesTheLossOfItsShortcut();
    void hostilePropertiesNameNoShortcut_data();
    void hostilePropertiesNameNoShortcut();
    void showsTheOldTextUntilARepaint();
    void draws_data();
    void draws();
    void drawsItsFocus();
};

void TestShortcutEdit::init()
{
    takeRecord();
}

void TestShortcutEdit::startsEmptyWithItsDefaults()
{
    QWidget parent;
    OlvShortcutEdit edit(&parent);
    QCOMPARE(edit.parentWidget(), &parent);
    QCOMPARE(edit.windowFlags(), Qt::FramelessWindowHint);
    QCOMPARE(edit.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(edit.toolTip(), QStringLiteral("请直接在键盘上输入新的快捷键"));
    QCOMPARE(edit.property("HasOlvShortcut"), QVariant(false));
    QCOMPARE(edit.property("HasOlvShortcut").userType(), int(QMetaType::Bool));
    QVERIFY(!edit.property("OlvShortcut").isValid());
    QCOMPARE(edit.property("Temp").userType(), int(QMetaType::ULongLong));
    QCOMPARE(textOf(captureOf(edit)), QStringLiteral(" 0 idle"));
    QCOMPARE(edit.shortcut(), nullptr);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("nullptr")));
    QVERIFY(QMetaType::type("OlvShortcut*") != QMetaType::UnknownType);
}

void TestShortcutEdit::hasASignalAndTwoSlotsInOrder()
{
    const QMetaObject &meta = OlvShortcutEdit::staticMetaObject;
    QCOMPARE(meta.className(), "OlvShortcutEdit");
    QCOMPARE(meta.superClass(), &OlvWidget::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 3);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
             QByteArray("shortcutChanged(OlvShortcut*)"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
             QByteArray("setShortcut(OlvShortcut*)"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).typeName(), "bool");
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.method(meta.methodOffset() + 2).methodSignature(), QByteArray("clear()"));
}

void TestShortcutEdit::notesKeys_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("capture");
    const auto row = [](const char *events, const QString &capture) {
        QTest::newRow(events) << QString::fromLatin1(events) << capture;
    };
    const auto with = [](const char *modifiers, int key) {
        return QStringLiteral("%1 %2 recording").arg(QLatin1String(modifiers)).arg(key);
    };
    row("+ctrl", with("c", -1));
    row("+ctrl +shift +alt +meta", with("csam", -1));
    row("+a", with("", 'A'));
    row("+ctrl +a", with("c", 'A'));
    row("+ctrl +a +b", with("c", 'B'));
    row("+esc", with("", Qt::Key_Escape));
    row("+back", with("", Qt::Key_Backspace));
    row("+super", with("", Qt::Key_Super_L));
    // modifiers alone end the recording
    row("+ctrl -ctrl", QStringLiteral(" -1 idle"));
    row("+ctrl +shift -ctrl", with("s", -1));
    row("+ctrl +shift -ctrl -shift", QStringLiteral(" -1 idle"));
    // a key that was noted stays noted, and keeps the recording going
    row("+ctrl +a -a", with("c", 'A'));
    row("+ctrl +a -a -ctrl", with("", 'A'));
    row("+ctrl +a -a -ctrl +b", with("", 'B'));
    row("+ctrl +a -ctrl -a", with("", 'A'));
    row("+a -a +ctrl", with("c", 'A'));
    row("+a -a +ctrl -ctrl", with("", 'A'));
    // a release whose press went elsewhere
    row("-ctrl", QStringLiteral(" 0 idle"));
    row("-a", QStringLiteral(" 0 idle"));
    row("+ctrl -ctrl -a", QStringLiteral(" -1 idle"));
}

void TestShortcutEdit::notesKeys()
{
    QFETCH(QString, events);
    QFETCH(QString, capture);
    OlvShortcutEdit edit;
    QSignalSpy changed(&edit, &OlvShortcutEdit::shortcutChanged);
    play(edit, events);
    QCOMPARE(textOf(captureOf(edit)), capture);
    // without an X server no combination can be had
    QCOMPARE(changed.count(), 0);
    QCOMPARE(edit.shortcut(), nullptr);
}

void TestShortcutEdit::takesKeyEventsForItself()
{
    OlvShortcutEdit edit;
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&edit, &event);
        QVERIFY(event.isAccepted());
    }
}

void TestShortcutEdit::triesEveryCombinationThatIsReleased()
{
    // seen by what is left of them: each try that fails leaves the shortcut before in place
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("held")));
    QSignalSpy changed(&edit, &OlvShortcutEdit::shortcutChanged);
    play(edit, QStringLiteral("+ctrl +shift +a -a -shift -ctrl"));
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("held")));
    QCOMPARE(changed.count(), 0);
}

void TestShortcutEdit::takesAShortcutOver()
{
    OlvShortcutEdit edit;
    QStringList order;
    auto *shortcut = new FakeShortcut(QStringLiteral("one"));
    connect(&edit, &OlvShortcutEdit::shortcutChanged, this, [&](OlvShortcut *taken) {
        QCOMPARE(taken, shortcut);
        QCOMPARE(edit.shortcut(), shortcut);
        order.append(QStringLiteral("shortcutChanged"));
    });
    connect(&edit, &OlvWidget::valueChanged, this, [&](const QVariant &value) {
        QCOMPARE(value, QVariant(QStringLiteral("one")));
        order.append(QStringLiteral("valueChanged"));
    });
    QVERIFY(edit.setShortcut(shortcut));
    QCOMPARE(order,
             QStringList({ QStringLiteral("shortcutChanged"), QStringLiteral("valueChanged") }));
    QCOMPARE(edit.property("HasOlvShortcut"), QVariant(true));
    QCOMPARE(edit.property("OlvShortcut").userType(), int(QMetaType::ULongLong));
    QCOMPARE(edit.property("OlvShortcut").toULongLong(), addressOf(shortcut));
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("one active") }));
}

void TestShortcutEdit::replacesTheOneBefore()
{
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("one")));
    QVERIFY(edit.setShortcut(new FakeShortcut(QStringLiteral("two"))));
    QCOMPARE(takeRecord(),
             QStringList({ QStringLiteral("one active"), QStringLiteral("two active"),
                           QStringLiteral("one destroyed"), QStringLiteral("one deleted") }));
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("two")));
}

void TestShortcutEdit::deletesOneThatCannotBeHad()
{
    auto *held = new FakeShortcut(QStringLiteral("one"));
    OlvShortcutEdit edit(held);
    QSignalSpy shortcutChanged(&edit, &OlvShortcutEdit::shortcutChanged);
    QSignalSpy valueChanged(&edit, &OlvWidget::valueChanged);
    takeRecord();
    QVERIFY(!edit.setShortcut(new FakeShortcut(QStringLiteral("two"), false)));
    QCOMPARE(takeRecord(),
             QStringList({ QStringLiteral("two active"), QStringLiteral("two deleted") }));
    QCOMPARE(edit.shortcut(), held);
    QCOMPARE(edit.property("OlvShortcut").toULongLong(), addressOf(held));
    QCOMPARE(shortcutChanged.count() + valueChanged.count(), 0);

    OlvShortcutEdit empty;
    QVERIFY(!empty.setShortcut(new FakeShortcut(QStringLiteral("three"), false)));
    QCOMPARE(empty.property("HasOlvShortcut"), QVariant(false));
    QVERIFY(!empty.property("OlvShortcut").isValid());
}

void TestShortcutEdit::constructorTakesAShortcut()
{
    QWidget parent;
    auto *shortcut = new FakeShortcut(QStringLiteral("one"));
    OlvShortcutEdit edit(shortcut, &parent);
    QCOMPARE(edit.parentWidget(), &parent);
    QCOMPARE(edit.shortcut(), shortcut);
    const OlvShortcutEdit refused(new FakeShortcut(QStringLiteral("two"), false), &parent);
    QCOMPARE(refused.property("HasOlvShortcut"), QVariant(false));
}

void TestShortcutEdit::valueIsTextOutAndAddressIn()
{
    OlvShortcutEdit edit;
    auto *shortcut = new FakeShortcut(QStringLiteral("one"));
    edit.setValue(addressOf(shortcut));
    QCOMPARE(edit.shortcut(), shortcut);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("one")));
    QCOMPARE(edit.getValue().userType(), int(QMetaType::QString));
}

void TestShortcutEdit::ignoresWhatIsNoShortcut()
{
    auto *held = new FakeShortcut(QStringLiteral("one"));
    OlvShortcutEdit edit(held);
    QSignalSpy changed(&edit, &OlvShortcutEdit::shortcutChanged);
    takeRecord();
    QVERIFY(!edit.setShortcut(nullptr));
    for (const QVariant &value :
         { QVariant(), QVariant(0), QVariant(0xdeadbeefULL), QVariant(QStringLiteral("Ctrl+A")),
           QVariant(addressOf(held) + 8) }) {
        edit.setValue(value);
    }
    QCOMPARE(edit.shortcut(), held);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(takeRecord(), QStringList());
}

void TestShortcutEdit::keepsTheOneItHoldsAlready()
{
    auto *held = new FakeShortcut(QStringLiteral("one"));
    OlvShortcutEdit edit(held);
    takeRecord();
    QVERIFY(edit.setShortcut(held));
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("one active") }));
    QCOMPARE(edit.shortcut(), held);
}

void TestShortcutEdit::clearingDeletesWithoutDestroying()
{
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("one")));
    QSignalSpy shortcutChanged(&edit, &OlvShortcutEdit::shortcutChanged);
    QSignalSpy valueChanged(&edit, &OlvWidget::valueChanged);
    takeRecord();
    edit.clear();
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("one deleted") }));
    QCOMPARE(edit.property("HasOlvShortcut"), QVariant(false));
    QCOMPARE(edit.shortcut(), nullptr);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("nullptr")));
    edit.clear();
    QCOMPARE(shortcutChanged.count() + valueChanged.count(), 0);
    QCOMPARE(takeRecord(), QStringList());
}

void TestShortcutEdit::destructorDeletesWithoutDestroying()
{
    {
        const OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("one")));
        takeRecord();
    }
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("one deleted") }));
}

void TestShortcutEdit::survivesSlotsThatDoAnything_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("fromValueChanged");
    for (const char *action : { "delete", "clear", "replace", "delete the shortcut" }) {
        for (const bool fromValueChanged : { false, true }) {
            QTest::addRow("%s, %s", action, fromValueChanged ? "valueChanged" : "shortcutChanged")
                << QString::fromLatin1(action) << fromValueChanged;
        }
    }
}

void TestShortcutEdit::survivesSlotsThatDoAnything()
{
    QFETCH(QString, action);
    QFETCH(bool, fromValueChanged);
    const QPointer<OlvShortcutEdit> edit(new OlvShortcutEdit);
    bool done = false;
    const auto act = [&] {
        if (std::exchange(done, true)) {
            return;
        }
        if (action == QLatin1String("delete")) {
            delete edit;
        } else if (action == QLatin1String("clear")) {
            edit->clear();
        } else if (action == QLatin1String("replace")) {
            edit->setShortcut(new FakeShortcut(QStringLiteral("two")));
        } else {
            delete edit->shortcut();
        }
    };
    if (fromValueChanged) {
        connect(edit, &OlvWidget::valueChanged, this, act);
    } else {
        connect(edit, &OlvShortcutEdit::shortcutChanged, this, act);
    }
    QVERIFY(edit->setShortcut(new FakeShortcut(QStringLiteral("one"))));
    QVERIFY(done);
    if (edit) {
        QCOMPARE(edit->getValue().toString(),
                 action == QLatin1String("replace") ? QStringLiteral("two")
                                                    : QStringLiteral("nullptr"));
    }
    delete edit;
    // whatever happened, each shortcut was deleted once
    const QStringList record = takeRecord();
    QCOMPARE(record.count(QStringLiteral("one deleted")), 1);
    QCOMPARE(record.count(QStringLiteral("two deleted")),
             action == QLatin1String("replace") ? 1 : 0);
}

void TestShortcutEdit::survivesShortcutsThatDeleteIt()
{
    QPointer<OlvShortcutEdit> edit(new OlvShortcutEdit);
    auto *shortcut = new FakeShortcut(QStringLiteral("one"));
    shortcut->onActive = [=] {
        delete edit;
    };
    QVERIFY(!edit->setShortcut(shortcut));
    QVERIFY(edit.isNull());
    QCOMPARE(takeRecord(),
             QStringList({ QStringLiteral("one active"), QStringLiteral("one deleted") }));

    edit = new OlvShortcutEdit;
    shortcut = new FakeShortcut(QStringLiteral("one"));
    shortcut->onDestroy = [=] {
        delete edit;
    };
    edit->setShortcut(shortcut);
    takeRecord();
    QVERIFY(!edit->setShortcut(new FakeShortcut(QStringLiteral("two"))));
    QVERIFY(edit.isNull());
    QStringList record = takeRecord();
    record.sort();
    QCOMPARE(record,
             QStringList({ QStringLiteral("one deleted"), QStringLiteral("one destroyed"),
                           QStringLiteral("two active"), QStringLiteral("two deleted") }));
}

void TestShortcutEdit::survivesTheLossOfItsShortcut()
{
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("one")));
    delete edit.shortcut();
    QCOMPARE(edit.shortcut(), nullptr);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("nullptr")));
    QVERIFY(!edit.grab().isNull());
    QVERIFY(edit.setShortcut(new FakeShortcut(QStringLiteral("two"))));
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("two")));
}

void TestShortcutEdit::hostilePropertiesNameNoShortcut_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    for (const char *name : { "HasOlvShortcut", "OlvShortcut", "Temp" }) {
        QTest::addRow("%s invalid", name) << QByteArray(name) << QVariant();
        QTest::addRow("%s wild", name) << QByteArray(name) << QVariant(0xdeadbeefULL);
        QTest::addRow("%s text", name) << QByteArray(name) << QVariant(QStringLiteral("x"));
    }
}

void TestShortcutEdit::hostilePropertiesNameNoShortcut()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    for (const bool holding : { false, true }) {
        auto *edit = new OlvShortcutEdit;
        if (holding) {
            edit->setShortcut(new FakeShortcut(QStringLiteral("one")));
        }
        edit->setProperty(name.constData(), value);
        QVERIFY(!edit->grab().isNull());
        edit->getValue();
        play(*edit, QStringLiteral("+ctrl +a -a -ctrl"));
        edit->setShortcut(new FakeShortcut(QStringLiteral("two")));
        QCOMPARE(edit->getValue(), QVariant(QStringLiteral("two")));
        edit->setProperty(name.constData(), value);
        edit->clear();
        delete edit;
        const QStringList record = takeRecord();
        QCOMPARE(record.count(QStringLiteral("one deleted")), holding ? 1 : 0);
        QCOMPARE(record.count(QStringLiteral("two deleted")), 1);
    }
}

void TestShortcutEdit::showsTheOldTextUntilARepaint()
{
    class Painted : public OlvShortcutEdit
    {
    public:
        using OlvShortcutEdit::OlvShortcutEdit;
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent *event) override
        {
            ++paints;
            OlvShortcutEdit::paintEvent(event);
        }
    } edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    QTest::qWait(20);
    const int before = edit.paints;
    edit.setShortcut(new FakeShortcut(QStringLiteral("one")));
    edit.clear();
    QTest::qWait(20);
    QCOMPARE(edit.paints, before);
    // the keyboard's way repaints, whether the combination can be had or not
    play(edit, QStringLiteral("+a -a"));
    QTRY_COMPARE(edit.paints, before + 1);
}

void TestShortcutEdit::draws_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("text");
    for (const QSize size : { QSize(200, 30), QSize(121, 41), QSize(20, 1) }) {
        for (const char *text : { "", "Ctrl+Shift+A" }) {
            QTest::addRow("%d x %d %s", size.width(), size.height(), text)
                << size << QString::fromLatin1(text);
        }
    }
}

void TestShortcutEdit::draws()
{
    QFETCH(QSize, size);
    QFETCH(QString, text);
    OlvShortcutEdit edit;
    edit.resize(size);
    if (!text.isEmpty()) {
        edit.setShortcut(new FakeShortcut(text));
    }
    DrawnWidget expected(size, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(QFont(QStringLiteral("新宋体"), size.height() / 2));
        painter.setPen(Qt::gray);
        painter.setBrush(QColor(255, 255, 255));
        painter.drawRoundedRect(QRectF(0, 0, size.width() - 2, size.height() - 2), 3.0, 3.0);
        painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, text);
    });
    for (const qreal ratio : { 1.0, 2.0 }) {
        COMPARE_PICTURES(pictureOf(edit, ratio), pictureOf(expected, ratio));
    }
}

void TestShortcutEdit::drawsItsFocus()
{
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("F5")));
    edit.resize(100, 30);
    edit.show();
    edit.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QTRY_VERIFY(edit.hasFocus());
    DrawnWidget expected({ 100, 30 }, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(QFont(QStringLiteral("新宋体"), 15));
        painter.setPen(QColor(32, 32, 32));
        painter.setBrush(QColor(255, 255, 255));
        painter.drawRoundedRect(QRectF(0, 0, 98, 28), 3.0, 3.0);
        painter.drawText(QRect(0, 0, 100, 30), Qt::AlignCenter, QStringLiteral("F5"));
    });
    COMPARE_PICTURES(pictureOf(edit), pictureOf(expected));
}

QTEST_MAIN(TestShortcutEdit)
#include "tst_shortcutedit.moc"
