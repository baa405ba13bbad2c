// SPDX-License-Identifier: MIT
// A text editor in a window without a frame: the control bar acts on it, the move helper moves it
// by its header, the resize helper resizes it by its edges.
#include <OlvControlBar>
#include <OlvGlobal>
#include <OlvMoveWidget>
#include <OlvResizeWidget>

#include <QApplication>
#include <QBoxLayout>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QPlainTextEdit>

class EditorWindow : public QWidget
{
    Q_OBJECT

public:
    EditorWindow()
        : m_text(new QPlainTextEdit)
        , m_mover(new OlvMoveWidget(this))
        , m_resizer(new OlvResizeWidget(this, 5))
    {
        setWindowTitle(tr("Editor"));
        setWindowFlags(Qt::FramelessWindowHint);
        setAttribute(Qt::WA_StyledBackground);
        setStyleSheet(
            QStringLiteral("EditorWindow { border: 1px solid rgb(207,207,207); }"
                           "QPlainTextEdit { border: none; padding: 8px; background: white; }"));

        // float, bottom, top, minimise, maximise, close; restore; then the buttons of this program
        const QList<QChar> glyphs{ 0xf08e, 0xf103, 0xf102, 0xf2d1, 0xf2d0,
                                   0xf00d, 0xf2d2, 0xf07c, 0xf0c7 };
        auto *bar = new OlvControlBar(glyphs, nullptr, { tr("Open"), tr("Save") });
        connect(bar, &OlvControlBar::changed, this, &EditorWindow::change);
        connect(bar, &OlvControlBar::custom, this, [this](int i) { i == 0 ? open() : save(); });

        auto *title = new QLabel(tr("Editor"));
        title->setAttribute(Qt::WA_TransparentForMouseEvents); // the header below it is dragged
        auto *header = new QHBoxLayout;
        header->setContentsMargins(16, 6, 8, 0);
        header->addWidget(title);
        header->addWidget(bar, 1);
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(1, 0, 1, 1);
        layout->addLayout(header);
        layout->addWidget(m_text, 1);
    }

protected:
    void resizeEvent(QResizeEvent * /*event*/) override
    {
        m_mover->setMoveArea(QRect(0, 0, width(), m_text->y()));
        m_resizer->reset();
    }

private:
    void change(OlvControlBar::WindowState state, bool on)
    {
        const QPoint place = pos();
        switch (state) {
        case OlvControlBar::Float:
            setWindowFlag(Qt::Tool, on);
            break;
        case OlvControlBar::Bottom:
        case OlvControlBar::Top: // the bar unchecks the other one
            setWindowFlag(Qt::WindowStaysOnBottomHint, on && state == OlvControlBar::Bottom);
            setWindowFlag(Qt::WindowStaysOnTopHint, on && state == OlvControlBar::Top);
            break;
        case OlvControlBar::Min:
            return showMinimized();
        case OlvControlBar::Max:
            return on ? showMaximized() : showNormal();
        case OlvControlBar::Close:
            return void(close());
        }
        move(place);
        show(); // a change of its flags hides a window
    }

    void open()
    {
        QFile file(QFileDialog::getOpenFileName(this));
        if (file.open(QIODevice::ReadOnly)) {
            m_text->setPlainText(QString::fromUtf8(file.readAll()));
        }
    }

    void save()
    {
        QFile file(QFileDialog::getSaveFileName(this));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(m_text->toPlainText().toUtf8());
        }
    }

    QPlainTextEdit *m_text;
    OlvMoveWidget *m_mover;
    OlvResizeWidget *m_resizer;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QDir::setCurrent(QApplication::applicationDirPath()); // where "Font" and "fonts" lie
    OlvGlobal::init();
    while (!OlvGlobal::isReady()) {
        QApplication::processEvents();
    }
    EditorWindow window;
    window.resize(640, 420);
    window.show();
    return QApplication::exec();
}

#include "main.moc"
