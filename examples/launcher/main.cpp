// SPDX-License-Identifier: MIT
// A launcher: a flow grid of icon buttons, of which the field above leaves those whose names
// contain what is typed. A click says what a tile starts, a double click starts it.
#include <OlvGlobal>
#include <OlvGridLayout>
#include <OlvIconButton>
#include <OlvLineEdit>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QProcess>
#include <QVBoxLayout>

namespace {

constexpr int tileSide = 92;

struct Program
{
    QChar glyph;
    QString name;
    QString command;
    QColor color;
};

QVector<Program> programs()
{
    const QColor blue(64, 158, 255);
    const QColor green(103, 194, 58);
    const QColor orange(230, 162, 60);
    const QColor red(245, 108, 108);
    return {
        { u'\uf0ac', QStringLiteral("Browser"), QStringLiteral("x-www-browser"), blue },
        { u'\uf0e0', QStringLiteral("Mail"), QStringLiteral("thunderbird"), orange },
        { u'\uf120', QStringLiteral("Terminal"), QStringLiteral("x-terminal-emulator"), green },
        { u'\uf07b', QStringLiteral("Files"), QStringLiteral("thunar"), orange },
        { u'\uf044', QStringLiteral("Editor"), QStringLiteral("mousepad"), blue },
        { u'\uf1ec', QStringLiteral("Calculator"), QStringLiteral("galculator"), green },
        { u'\uf001', QStringLiteral("Music"), QStringLiteral("audacious"), red },
        { u'\uf03d', QStringLiteral("Videos"), QStringLiteral("vlc"), red },
        { u'\uf03e', QStringLiteral("Pictures"), QStringLiteral("ristretto"), green },
        { u'\uf073', QStringLiteral("Calendar"), QStringLiteral("orage"), blue },
        { u'\uf0ad', QStringLiteral("Settings"), QStringLiteral("xfce4-settings-manager"), orange },
        { u'\uf023', QStringLiteral("Lock"), QStringLiteral("xflock4"), red },
    };
}

} // namespace

class Launcher : public QWidget
{
    Q_OBJECT

public:
    Launcher()
        : m_status(new QLabel(tr("Double-click a tile to start its program.")))
    {
        setWindowTitle(tr("Launcher"));
        QPalette colors = palette();
        colors.setColor(QPalette::Window, QColor(38, 43, 54));
        setPalette(colors);
        m_status->setStyleSheet(QStringLiteral("color: rgb(144,147,153); padding: 10px 16px;"));

        // the grid scrolls within its parent, so it needs one of its own as a viewport
        auto *viewport = new QWidget;
        auto *search = new OlvLineEdit;
        search->setFixedHeight(32);
        search->setAccessibleName(tr("Search"));
        search->setPlaceholderText(tr("Search"));
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(search);
        layout->addWidget(viewport, 1);
        layout->addWidget(m_status);
        resize(5 * tileSide + 130, 432);
        layout->activate();

        auto *grid = new OlvGridLayout(viewport);
        grid->resize(viewport->size());       // until it follows the viewport's first resize
        grid->setRetainSizeWhenHidden(false); // no gaps where the search hides tiles
        grid->setAutoFillBackground(true);    // lets Qt scroll the pixels
        QList<QWidget *> tiles;
        const QVector<Program> all = programs();
        for (const Program &program : all) {
            auto *tile = new OlvIconButton(program.glyph, program.name,
                                           QStringLiteral("FontAwesome"), grid, tileSide, tileSide);
            tile->setColor(program.color);
            tile->setToolTip(program.command);
            tile->show();
            connect(search->lineEdit(), &QLineEdit::textChanged, tile, [=](const QString &text) {
                tile->setVisible(program.name.contains(text, Qt::CaseInsensitive));
            });
            connect(tile, &OlvIconButton::clicked, m_status,
                    [=] { m_status->setText(tr("%1: %2").arg(program.name, program.command)); });
            connect(tile, &OlvIconButton::dClicked, this, [=] { start(program); });
            tiles.append(tile);
        }
        grid->setMargin(20);
        grid->addWidget(tiles);
    }

private:
    void start(const Program &program)
    {
        const bool started = QProcess::startDetached(program.command, {});
        m_status->setText(
            (started ? tr("Started %1.") : tr("%1 is not installed.")).arg(program.command));
    }

    QLabel *m_status;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QDir::setCurrent(QApplication::applicationDirPath()); // where "Font" and "fonts" lie
    OlvGlobal::init();
    while (!OlvGlobal::isReady()) {
        QApplication::processEvents();
    }
    Launcher launcher;
    launcher.show();
    return QApplication::exec();
}

#include "main.moc"
