// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvWidget>

#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>

namespace {

class NumberWidget : public OlvWidget
{
public:
    using OlvWidget::OlvWidget;

    void setValue(const QVariant &value) override
    {
        m_value = value.toInt();
        Q_EMIT valueChanged(m_value);
    }
    QVariant getValue() override
    {
        return m_value;
    }

private:
    int m_value = 0;
};

void commit(QObject *receiver, const QString &preedit, const QString &text)
{
    QInputMethodEvent event(preedit, {});
    event.setCommitString(text);
    QCoreApplication::sendEvent(receiver, &event);
}

} // namespace

class TestWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainWidgetInItsParent();
    void parentMayBeLeftOut();
    void virtualsStandBehindThoseOfQWidgetInOrder();
    void valueGoesThroughTheBase();
    void opensToTheInputMethod();
    void getsNoInputMethodEventsUnlessOpened();
    void tellsEveryCommit();
    void signalsBeforeTheBaseHandlesTheEvent();
};

void TestWidget::isAPlainWidgetInItsParent()
{
    QWidget parent;
    auto *widget = new NumberWidget(&parent);
    QCOMPARE(widget->parentWidget(), &parent);
    QCOMPARE(widget->windowFlags(), QWidget(&parent).windowFlags());
    QCOMPARE(widget->focusPolicy(), Qt::NoFocus);
    QVERIFY(!widget->testAttribute(Qt::WA_InputMethodEnabled));
    QVERIFY(widget->dynamicPropertyNames().isEmpty());
    QCOMPARE(sizeof(OlvWidget), sizeof(QWidget));
}

void TestWidget::parentMayBeLeftOut()
{
    NumberWidget widget;
    QVERIFY(!widget.parentWidget());
    QVERIFY(widget.isWindow());
}

void TestWidget::virtualsStandBehindThoseOfQWidgetInOrder()
{
    // A pointer to a virtual member holds its place in the table, in bytes, plus one (Itanium ABI).
    const auto place = [](auto member) {
        std::ptrdiff_t words[2];
        static_assert(sizeof member == sizeof words, "not the Itanium ABI");
        memcpy(words, &member, sizeof words);
        return words[0];
    };
    const std::ptrdiff_t setValue = place(&OlvWidget::setValue);
    const std::ptrdiff_t getValue = place(&OlvWidget::getValue);
    QCOMPARE(getValue - setValue, std::ptrdiff_t(sizeof(void *)));

    // the last virtual that QWidget adds
    struct LastOfQWidget : QWidget
    {
        using QWidget::focusNextPrevChild;
    };
    QVERIFY(setValue > place(&LastOfQWidget::focusNextPrevChild));
}

void TestWidget::valueGoesThroughTheBase()
{
    NumberWidget number;
    OlvWidget *widget = &number;
    QSignalSpy changed(widget, &OlvWidget::valueChanged);
    widget->setValue(12);
    QCOMPARE(widget->getValue(), QVariant(12));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<QVariant>(), QVariant(12));
}

void TestWidget::opensToTheInputMethod()
{
    NumberWidget widget;
    for (int call = 0; call < 2; ++call) {
        widget.openInputMethod();
        QCOMPARE(widget.focusPolicy(), Qt::StrongFocus);
        QVERIFY(widget.testAttribute(Qt::WA_InputMethodEnabled));
    }
}

void TestWidget::getsNoInputMethodEventsUnlessOpened()
{
    NumberWidget widget;
    widget.setFocusPolicy(Qt::StrongFocus);
    widget.show();
    widget.setFocus();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QSignalSpy commits(&widget, &OlvWidget::inputMethodCommit);
    QTRY_COMPARE(QGuiApplication::focusObject(), static_cast<QObject *>(&widget));

    // what the platform asks an object before it sends anything
    QInputMethodQueryEvent closed(Qt::ImEnabled);
    QCoreApplication::sendEvent(&widget, &closed);
    QVERIFY(!closed.value(Qt::ImEnabled).toBool());
    QCOMPARE(commits.count(), 0);

    widget.openInputMethod();
    QInputMethodQueryEvent open(Qt::ImEnabled);
    QCoreApplication::sendEvent(&widget, &open);
    QVERIFY(open.value(Qt::ImEnabled).toBool());
    commit(&widget, {}, QStringLiteral("字"));
    QCOMPARE(commits.count(), 1);
}

void TestWidget::tellsEveryCommit()
{
    NumberWidget widget;
    widget.openInputMethod();
    QSignalSpy commits(&widget, &OlvWidget::inputMethodCommit);
    commit(&widget, QStringLiteral("zhong"), {});
    commit(&widget, QStringLiteral("zhongwen"), {});
    commit(&widget, {}, QStringLiteral("中文"));
    QCOMPARE(commits.count(), 3);
    QCOMPARE(commits.at(0).first().toString(), QString());
    QCOMPARE(commits.at(1).first().toString(), QString());
    QCOMPARE(commits.at(2).first().toString(), QStringLiteral("中文"));
}

void TestWidget::signalsBeforeTheBaseHandlesTheEvent()
{
    NumberWidget widget;
    QInputMethodEvent event(QStringLiteral("a"), {});
    event.accept();
    bool acceptedWhenSignalled = false;
    connect(&widget, &OlvWidget::inputMethodCommit, this,
            [&] { acceptedWhenSignalled = event.isAccepted(); });
    QCoreApplication::sendEvent(&widget, &event);
    QVERIFY(acceptedWhenSignalled);
    // QWidget ignores the event; nothing of ours accepts it again
    QVERIFY(!event.isAccepted());
}

ADD_TEST(TestWidget, QApplication)
#include "tst_widget.moc"
