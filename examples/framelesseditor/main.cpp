// SPDX-License-Identifier: MIT
// A text editor in a window without a frame: a bar acts on it, helpers move it and resize it.
#include <OlvWidgets/frame.h>

#include <QtWidgets>

class EditorWindow : public QFrame
{
    Q_DECLARE_TR_FUNCTIONS(EditorWindow)

public:
    EditorWindow()
        : m_text(new QPlainTextEdit)
        , m_mover(new OlvMoveWidget(this))
        , m_resizer(new OlvResizeWidget(this, 5))
    {
        setWindowTitle(tr("Editor"));
        setWindowFlags(Qt::FramelessWindowHint);
        setFrameShape(QFrame::StyledPanel);
        m_text->setStyleSheet(QStringLiteral("border: none; padding: 8px; background: white;"));
        m_text->setAccessibleName(tr("Text"));
        // float, bottom, top, minimise, maximise, close; restore; then the buttons of this program
        const QList<QChar> glyphs{ u'\uf08e', u'\uf103', u'\uf102', u'\uf2d1', u'\uf2d0',
                                   u'\uf00d', u'\uf2d2', u'\uf07c', u'\uf0c7' };
        auto *bar = new OlvControlBar(glyphs, nullptr, { tr("Open"), tr("Save") });
        connect(bar, &OlvControlBar::changed, this, &EditorWindow::change);
        connect(bar, &OlvControlBar::custom, this, [=](int i) { i == 0 ? open() : void(save()); });
        if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
            for (auto state : { OlvControlBar::Float, OlvControlBar::Bottom, OlvControlBar::Top }) {
                bar->button(state)->hide(); // which Wayland does not have
            }
        }
        auto *title = new QLabel(tr("Editor"));
        title->setAttribute(Qt::WA_TransparentForMouseEvents); // so that presses reach the window
        title->setIndent(16);
        connect(this, &QWidget::windowTitleChanged, title, &QLabel::setText);
        auto *layout = new QGridLayout(this);
        layout->setContentsMargins(0, 6, 0, 0);
        layout->addWidget(title, 0, 0);
        layout->addWidget(bar, 0, 1);
        layout->addWidget(m_text, 1, 0, 1, 2);
    }

private:
    void resizeEvent(QResizeEvent * /*event*/) override
    {
        m_mover->setMoveArea(QRect(0, 0, width(), m_text->y()));
        m_resizer->reset();
    }
    void closeEvent(QCloseEvent *event) override
    {
        event->setAccepted(mayLoseText());
    }

    void change(OlvControlBar::WindowState state, bool on)
    {
        const QPoint place = pos();
        switch (state) {
        case OlvControlBar::Float:
            setWindowFlag(Qt::Tool, on);
            setAttribute(Qt::WA_QuitOnClose); // Qt clears it for a tool window
            break;
        case OlvControlBar::Min:
            return showMinimized();
        case OlvControlBar::Max:
            return on ? showMaximized() : showNormal();
        case OlvControlBar::Close:
            return void(close());
        default: // the bar unchecks the other button
            setWindowFlag(Qt::WindowStaysOnBottomHint, on && state == OlvControlBar::Bottom);
            setWindowFlag(Qt::WindowStaysOnTopHint, on && state == OlvControlBar::Top);
        }
        move(place);
        show(); // changing the flags of a window hides it
    }

    bool mayLoseText()
    {
        const auto answer = m_text->document()->isModified()
            ? QMessageBox::question(this, windowTitle(), tr("Save the changes?"),
                                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel)
            : QMessageBox::Discard;
        return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
    }

    void open()
    {
        QFile file(mayLoseText() ? QFileDialog::getOpenFileName(this) : QString());
        if (!file.fileName().isEmpty() && file.open(QIODevice::ReadOnly)) {
            m_text->setPlainText(QString::fromUtf8(file.readAll()));
            setWindowFilePath(file.fileName());
            setWindowTitle(QFileInfo(file.fileName()).fileName());
        }
    }

    bool save()
    {
        const QString name = windowFilePath();
        QSaveFile file(name.isEmpty() ? QFileDialog::getSaveFileName(this) : name);
        const bool saved = !file.fileName().isEmpty() && file.open(QIODevice::WriteOnly)
            && file.write(m_text->toPlainText().toUtf8()) >= 0 && file.commit();
        if (saved) {
            setWindowFilePath(file.fileName());
            setWindowTitle(QFileInfo(file.fileName()).fileName());
            m_text->document()->setModified(false);
        } else if (!file.fileName().isEmpty()) {
            QMessageBox::warning(this, windowTitle(), file.errorString());
        }
        return saved;
    }

    QPlainTextEdit *m_text;
    OlvMoveWidget *m_mover;
    OlvResizeWidget *m_resizer;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    EditorWindow window;
    window.resize(640, 420);
    window.show();
    return QApplication::exec();
}
