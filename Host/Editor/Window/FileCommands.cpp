// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/FileCommands.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Widgets/KeepTranslated.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>

namespace {

constexpr int kMostRecent = 10;
const char kRecent[] = "recent";
const char kSuffix[] = ".mlt";

QString Filter()
{
    return FileCommands::tr("Projects") + QStringLiteral(" (*.mlt *.otio)");
}

} // namespace

FileCommands::FileCommands(Project& project, QWidget& window)
    : QObject(&window), m_project(project), m_window(window), m_recent(new QMenu(&window))
{
    Add(QT_TR_NOOP("New"), QKeySequence::New, [this] { New(); });
    Add(QT_TR_NOOP("Open…"), QKeySequence::Open, [this] { Open(); });
    m_actions << m_recent->menuAction() << nullptr;
    Add(QT_TR_NOOP("Save"), QKeySequence::Save, [this] { Save(); });
    Add(QT_TR_NOOP("Save as…"), QKeySequence(QStringLiteral("Ctrl+Shift+S")), [this] { SaveAs(); });
    KeepTranslated(&window, [this] { m_recent->setTitle(tr("Open recent")); });
    connect(m_recent, &QMenu::aboutToShow, this, &FileCommands::ShowRecent);
    connect(&project, &Project::PathChanged, this, &FileCommands::NoteRecent);
}

template <typename Act>
QAction* FileCommands::Add(const char* text, const QKeySequence& keys, Act act)
{
    auto* action = new QAction(&m_window);
    action->setShortcut(keys);
    KeepTranslated(&m_window, [action, text] { action->setText(tr(text)); });
    connect(action, &QAction::triggered, this, act);
    m_actions << action;
    return action;
}

void FileCommands::New()
{
    if (MayLeave())
        m_project.New(EngineProvider().GetDefualtProfile());
}

void FileCommands::Open()
{
    const QString folder = QFileInfo(m_project.Path()).absolutePath();
    const QString path = QFileDialog::getOpenFileName(&m_window, tr("Open…"), folder, Filter());
    if (!path.isEmpty())
        Open(path);
}

bool FileCommands::Open(const QString& path)
{
    return MayLeave() && m_project.Open(path);
}

bool FileCommands::Save()
{
    return m_project.Path().isEmpty() ? SaveAs() : m_project.Save();
}

bool FileCommands::SaveAs()
{
    const QString current =
        m_project.Path().isEmpty() ? tr("Untitled") + QLatin1String(kSuffix) : m_project.Path();
    QString path = QFileDialog::getSaveFileName(&m_window, tr("Save as…"), current, Filter());
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).suffix().isEmpty())
        path += QLatin1String(kSuffix);
    return m_project.SaveAs(path);
}

bool FileCommands::MayLeave()
{
    if (!m_project.IsModified())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Save changes"),
                    tr("The project has changes that are not saved."),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &m_window);
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save());
}

void FileCommands::ShowRecent()
{
    m_recent->clear();
    for (const QString& path : QSettings().value(QLatin1String(kRecent)).toStringList()) {
        QAction* action = m_recent->addAction(QDir::toNativeSeparators(path));
        action->setEnabled(QFileInfo::exists(path));
        connect(action, &QAction::triggered, this, [this, path] { Open(path); });
    }
}

void FileCommands::NoteRecent()
{
    if (m_project.Path().isEmpty())
        return;
    QSettings settings;
    QStringList paths = settings.value(QLatin1String(kRecent)).toStringList();
    paths.removeAll(m_project.Path());
    paths.prepend(m_project.Path());
    settings.setValue(QLatin1String(kRecent), QStringList(paths.mid(0, kMostRecent)));
}
