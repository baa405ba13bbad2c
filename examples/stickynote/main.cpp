// SPDX-License-Identifier: MIT
// Sticky notes: floating panels that keep on top, that the user drags by their rims and resizes,
// and that come back with their texts.
#include <OlvFlexWidget>
#include <OlvGlobal>
#include <OlvSimpleIconButton>

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QSettings>
#include <QVBoxLayout>

class Note : public OlvFlexWidget
{
    Q_OBJECT

public:
    explicit Note(const QString &text)
        : OlvFlexWidget(260, 220)
        , m_text(new QPlainTextEdit(text))
    {
        setWindowTitle(tr("Note"));
        setHeaderWay(HeaderTop, QColor(255, 193, 7));
        m_text->setPlaceholderText(tr("Do not forget …"));
        m_text->setStyleSheet(QStringLiteral("border: none; background: transparent;"
                                             "font-size: 15px; color: rgb(48,49,51);"));

        auto *buttons = new QHBoxLayout;
        auto *pin = addButton(buttons, 0xf08d, tr("Keep on top"));
        buttons->addStretch();
        auto *add = addButton(buttons, 0xf067, tr("Another note"));
        auto *remove = addButton(buttons, 0xf00d, tr("Throw away"));
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(12, 16, 12, 12); // the rim, by which the note is dragged
        layout->setSpacing(4);
        layout->addLayout(buttons);
        layout->addWidget(m_text, 1);

        pin->setToggle(QChar(0xf08d)); // the same glyph, dark while it is checked
        pin->setChecked(true);
        connect(pin, &QPushButton::clicked, this, [=](bool on) {
            const QPoint place = pos();
            stay(on ? StayTop : StayNormal);
            move(place);
        });
        connect(add, &QPushButton::clicked, this, [=] { open(QString(), pos() + offset()); });
        connect(remove, &QPushButton::clicked, this, [=] {
            m_text->clear(); // an empty note is not kept
            close();
        });
    }

    static void open(const QString &text, QPoint place)
    {
        auto *note = new Note(text);
        note->setAttribute(Qt::WA_DeleteOnClose);
        note->stay(StayTop); // shows it
        note->move(place);
    }

    static QPoint offset()
    {
        return { 40, 40 };
    }

protected:
    void closeEvent(QCloseEvent * /*event*/) override
    {
        if (!m_text->toPlainText().isEmpty()) {
            QSettings settings;
            const QStringList texts = settings.value(QStringLiteral("notes")).toStringList();
            settings.setValue(QStringLiteral("notes"), texts + QStringList(m_text->toPlainText()));
        }
    }

private:
    OlvSimpleIconButton *addButton(QHBoxLayout *row, ushort glyph, const QString &tip)
    {
        auto *button =
            new OlvSimpleIconButton(QChar(glyph), QFont(QStringLiteral("FontAwesome"), 11));
        button->setFixedSize(22, 22);
        button->setToolTip(tip);
        row->addWidget(button);
        return button;
    }

    QPlainTextEdit *m_text;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("OlvWidgets"));
    QApplication::setApplicationName(QStringLiteral("stickynote"));
    QDir::setCurrent(QApplication::applicationDirPath()); // where "Font" and "fonts" lie
    OlvGlobal::init();
    while (!OlvGlobal::isReady()) {
        QApplication::processEvents();
    }

    QSettings settings;
    QStringList texts = settings.value(QStringLiteral("notes")).toStringList();
    settings.remove(QStringLiteral("notes")); // each note that is closed with a text comes back
    if (texts.isEmpty()) {
        texts.append(QString());
    }
    QPoint place(120, 90);
    for (const QString &text : qAsConst(texts)) {
        Note::open(text, place);
        place += Note::offset();
    }
    return QApplication::exec();
}

#include "main.moc"
