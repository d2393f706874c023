#include "app/qt_environment.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QStandardPaths>
#include <filesystem>
#include <sqlite3.h>

#include "core/host_path.h"
#include "core/product.h"
#include "ui/parts.h"

namespace qf::app {

namespace {

/// SQLite's commands and file format are those of this version and newer ones.
constexpr int OldestDatabaseLibrary = 3037000;

QMessageBox::Icon IconOf(core::MessageStyle style)
{
    switch (style) {
    case core::MessageStyle::Critical: return QMessageBox::Critical;
    case core::MessageStyle::Question: return QMessageBox::Question;
    case core::MessageStyle::Warning: return QMessageBox::Warning;
    case core::MessageStyle::Information: return QMessageBox::Information;
    case core::MessageStyle::Plain: break;
    }
    return QMessageBox::NoIcon;
}

/// A question that is answered by one of its buttons alone: Esc or the frame's close mark would say No for
/// the user, and No may throw away what was typed.
class QuestionBox final : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Escape) {
            event->accept();
            return;
        }
        QMessageBox::keyPressEvent(event);
    }
};

QMessageBox::StandardButton Run(QMessageBox& box, const core::Message& message, QMessageBox::StandardButtons buttons)
{
    box.setIcon(IconOf(message.style));
    box.setWindowTitle(ui::Text(message.title ? std::string_view(*message.title) : core::ThisProduct.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ui::Text(message.text).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    box.setStandardButtons(buttons);
    if (const auto* owner = box.parentWidget(); owner != nullptr && (owner->windowFlags() & Qt::WindowStaysOnTopHint)) {
        box.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

/// "caption|mask;mask|caption|mask" in Qt's way of writing.
QString FilterOf(std::string_view filter)
{
    const auto  parts = ui::Text(filter).split(QLatin1Char('|'));
    QStringList all;
    for (qsizetype index = 0; index + 1 < parts.size(); index += 2) {
        const auto masks = parts[index + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts).join(QLatin1Char(' '));
        all << parts[index].trimmed() + QLatin1String(" (") + masks + QLatin1Char(')');
    }
    return all.join(QLatin1String(";;"));
}

} // namespace

void DesktopMessageBoxes::Show(const core::Message& message)
{
    QMessageBox box(QApplication::activeWindow());
    Run(box, message, QMessageBox::Ok);
}

bool DesktopMessageBoxes::Ask(const core::Message& message)
{
    QuestionBox box(QApplication::activeWindow());
    return Run(box, message, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

std::string DesktopFileDialogs::OpenFile(const ui::FileDialogRequest& request)
{
    const auto chosen = QFileDialog::getOpenFileName(QApplication::activeWindow(), ui::Text(request.title), QString(),
                                                     FilterOf(request.filter));
    return chosen.isEmpty() ? request.fileName : core::ProgramPath(QFileInfo(chosen).filesystemFilePath());
}

void DesktopClipboard::SetText(std::string_view text)
{
    QApplication::clipboard()->setText(ui::Text(text));
}

void InstalledComponents::Check()
{
    if (sqlite3_libversion_number() < OldestDatabaseLibrary) {
        throw core::RuntimeError(core::error::ComponentMissing);
    }
    SeedProgramFolder(place_);
    std::error_code                           failure;
    const std::filesystem::directory_iterator folder(place_.folder, failure);
    if (failure) {
        throw core::RuntimeError(core::error::ComponentUnsuited);
    }
}

bool InstalledComponents::AnotherInstanceRuns()
{
    auto folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    }
    QDir().mkpath(folder);
    lock_ = std::make_unique<QLockFile>(folder + QStringLiteral("/quernfield-instance.lock"));
    // The lock lasts as long as its owner lives, however long that is.
    lock_->setStaleLockTime(0);
    return !lock_->tryLock() && lock_->error() == QLockFile::LockFailedError;
}

void DesktopProcess::OnEnd()
{
    QCoreApplication::exit(0);
}

void DesktopProcess::OnFailure(const core::RuntimeError& error)
{
    exitCode_ = 1;
    boxes_.Show(RuntimeErrorBox(error));
    QCoreApplication::exit(1);
}

core::Message RuntimeErrorBox(const core::RuntimeError& error)
{
    return {"Run-time error '" + std::to_string(error.Number()) + "':\r\n\r\n" + error.Description(),
            core::MessageStyle::Critical,
            {}};
}

} // namespace qf::app
