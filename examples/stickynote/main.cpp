// SPDX-License-Identifier: MIT
// Sticky notes: floating panels that keep on top, that the user drags by their rims and resizes.
// Each is stored whenever it changes, so that none is lost if the program crashes.
#include <OlvFlexWidget>
#include <OlvGlobal>
#include <OlvPluginEventFilter>
#include <OlvSimpleIconButton>

#include <QtWidgets>

/** What a panel holds and stores; the panel owns it, and is deleted when it is closed. */
class Note : public QObject
{
    Q_OBJECT

public:
    static void open(const QString &key, QPoint place)
    {
        auto *panel = new OlvFlexWidget(260, 220);
        panel->setAttribute(Qt::WA_DeleteOnClose);
        const auto *note = new Note(panel, key);
        panel->stay(OlvFlexWidget::StayTop); // shows it
        if (note->m_hasPlace) {
            panel->move(note->m_settings.value(QStringLiteral("place"), place).toPoint());
        }
    }

private:
    Note(OlvFlexWidget *panel, const QString &key)
        : QObject(panel)
        , m_panel(panel)
        , m_text(new QPlainTextEdit)
    {
        panel->setWindowTitle(tr("Note"));
        panel->setHeaderWay(OlvFlexWidget::HeaderTop, QColor(255, 193, 7));
        m_settings.beginGroup(key);
        m_text->setAccessibleName(tr("Text"));
        m_text->setPlaceholderText(tr("Do not forget …"));
        m_text->setStyleSheet(QStringLiteral("border: none; background: transparent;"
                                             "font-size: 15px; color: rgb(48,49,51);"));
        m_text->setPlainText(m_settings.value(QStringLiteral("text")).toString());
        auto *buttons = new QHBoxLayout;
        auto *pin = addButton(buttons, 0xf08d, tr("Keep on top"));
        buttons->addStretch();
        auto *add = addButton(buttons, 0xf067, tr("Another note"));
        auto *remove = addButton(buttons, 0xf00d, tr("Throw away"));
        auto *layout = new QVBoxLayout(panel);
        layout->setContentsMargins(12, 16, 12, 12); // the rim, by which the note is dragged
        layout->setSpacing(4);
        layout->addLayout(buttons);
        layout->addWidget(m_text, 1);

        pin->setCheckable(true);
        pin->setToggle(QChar(0xf08d)); // the same glyph, dark while it is checked
        pin->setChecked(true);
        connect(pin, &QPushButton::clicked, panel, [=](bool on) {
            const QPoint place = panel->pos();
            panel->stay(on ? OlvFlexWidget::StayTop : OlvFlexWidget::StayNormal);
            if (m_hasPlace) {
                panel->move(place);
            }
        });
        connect(add, &QPushButton::clicked, panel,
                [=] { open(QUuid::createUuid().toString(), panel->pos() + QPoint(40, 40)); });
        connect(remove, &QPushButton::clicked, m_text, &QPlainTextEdit::clear);
        connect(remove, &QPushButton::clicked, panel, &QWidget::close);
        connect(m_text, &QPlainTextEdit::textChanged, this, &Note::store);
        m_settling.setSingleShot(true); // a drag moves the note many times, and stores it once
        m_settling.setInterval(200);
        connect(&m_settling, &QTimer::timeout, this, &Note::store);
        m_moves.addObject(panel);
        m_moves.addEventListener(QEvent::Move, [this](QEvent *) { m_settling.start(); });
    }

    static OlvSimpleIconButton *addButton(QHBoxLayout *row, ushort glyph, const QString &tip)
    {
        auto *button =
            new OlvSimpleIconButton(QChar(glyph), QFont(QStringLiteral("FontAwesome"), 11));
        button->setCheckable(false); // the default is true
        button->setFixedSize(22, 22);
        button->setToolTip(tip);
        row->addWidget(button);
        return button;
    }

    void store()
    {
        m_settings.remove(QString()); // an empty note is not kept
        if (!m_text->toPlainText().isEmpty()) {
            m_settings.setValue(QStringLiteral("text"), m_text->toPlainText());
            if (m_hasPlace) {
                m_settings.setValue(QStringLiteral("place"), m_panel->pos());
            }
        }
        m_settings.sync();
    }

    OlvFlexWidget *m_panel;
    QPlainTextEdit *m_text;
    QSettings m_settings;
    QTimer m_settling;
    OlvPluginEventFilter m_moves;
    /** On Wayland a program neither knows nor sets where its windows are. */
    bool m_hasPlace = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
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
    QStringList keys = QSettings().childGroups();
    if (keys.isEmpty()) {
        keys.append(QUuid::createUuid().toString());
    }
    for (const QString &key : qAsConst(keys)) {
        Note::open(key, { 120, 90 });
    }
    return QApplication::exec();
}

#include "main.moc"
