#include "runtime/controls/dispatch/event_site.h"
#include <tetrad/app/modal.h>
#include <tetrad/app/windows.h>
#include <tetrad/controls/panels.h>
#include <tetrad/events/event_codes.h>

#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QLineEdit>
#include <QPointer>
#include <QSet>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

QSet<Tag> askingTags;

QString pathOf(const QModelIndex &index)
{
    return index.data(QFileSystemModel::FilePathRole).toString();
}

// Greys out the files that the program does not enable.
class EnabledFiles : public QIdentityProxyModel
{
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags flags = QIdentityProxyModel::flags(index);
        return m_disabled.contains(pathOf(index)) ? flags & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable) : flags;
    }

    void disable(const QModelIndex &index)
    {
        m_disabled.insert(pathOf(index));
        Q_EMIT dataChanged(index, index);
    }

private:
    QSet<QString> m_disabled;
};

class FilePanel : public QFileDialog
{
public:
    FilePanel(Tag tag, AcceptMode mode, const QString &path) : QFileDialog(CUI_OutputWindow())
    {
        setObjectTag(this, tag);
        setObjectWindowTag(this, CUI_OutputWindowTag());
        // A native panel cannot send the events.
        setOption(DontUseNativeDialog);
        setAcceptMode(mode);
        setFileMode(mode == AcceptSave ? AnyFile : ExistingFile);
        if (QFileInfo(path).isDir()) {
            setDirectory(path);
        } else {
            selectFile(path);
        }
        connect(this, &QDialog::finished, this,
                [](int result) { stopModalWithCode(result == Accepted ? modalStopped : modalAborted); });
        connect(this, &QFileDialog::currentChanged, this,
                [this](const QString &file) { reportSoon(filePanelEventSelectionChanged, file); });
        connect(findChild<QFileSystemModel *>(), &QFileSystemModel::rootPathChanged, this,
                [this](const QString &folder) { reportSoon(filePanelEventDirectoryChanged, folder); });
        if (askingTags.contains(tag)) {
            m_files = new EnabledFiles(this);
            connect(m_files, &QAbstractItemModel::rowsInserted, this, &FilePanel::askSoon);
            setProxyModel(m_files);
        }
    }

protected:
    // A folder is entered instead.
    void accept() override
    {
        callSoon(this, [this] {
            if (QFileInfo(selectedFiles().value(0)).isDir() || isLet()) {
                QFileDialog::accept();
            }
        });
    }

private:
    // False also when the program answered by deleting the panel.
    bool isLet()
    {
        const QPointer<FilePanel> guard(this);
        if (acceptMode() == AcceptSave) {
            const QFileInfo entered(selectedFiles().value(0));
            const QString name =
                answerTo(this, filePanelEventUserEnteredName, &CUI_DialogEvent::stringObj, entered.fileName());
            if (!guard || name.isEmpty()) {
                return false;
            }
            findChild<QLineEdit *>()->setText(entered.dir().filePath(name));
        }
        return !m_files || (asks(filePanelEventValidateUrl, selectedFiles().value(0)) && guard);
    }

    bool asks(qint64 question, const QString &path)
    {
        CUI_DialogEventObj()->urlObj = QUrl::fromLocalFile(path);
        return answersYes(this, question);
    }

    void reportSoon(qint64 event, const QString &path)
    {
        callSoon(this, [this, event, path] {
            CUI_DialogEventObj()->urlObj = QUrl::fromLocalFile(path);
            sendObjectEvent(this, event);
        });
    }

    void askSoon(const QModelIndex &parent, int first, int last)
    {
        for (int row = first; row <= last; ++row) {
            callSoon(this, [this, file = QPersistentModelIndex(m_files->index(row, 0, parent))] { ask(file); });
        }
    }

    void ask(const QPersistentModelIndex &file)
    {
        const QPointer<FilePanel> guard(this);
        const QString path = pathOf(file);
        if (QFileInfo(path).isFile() && !asks(filePanelEventShouldEnableUrl, path) && guard) {
            m_files->disable(file);
        }
    }

    EnabledFiles *m_files = nullptr;
};

QString chosenFile(Tag tag, QFileDialog::AcceptMode mode, const QString &title, const QString &path,
                   const QString &kinds)
{
    // The menu's shortcuts work in the panel too.
    static QPointer<FilePanel> panel;
    if (panel) {
        return {};
    }
    panel = new FilePanel(tag, mode, path);
    if (!title.isNull()) {
        panel->setWindowTitle(title);
    }
    if (!kinds.isEmpty()) {
        panel->setNameFilter(u"*."_s + QString(kinds).replace(u";"_s, u" *."_s));
        panel->setDefaultSuffix(kinds.section(u';', 0, 0));
    }
    const bool isChosen = runModalForWindow(panel) == modalStopped && panel;
    QString chosen = isChosen ? panel->selectedFiles().value(0) : QString();
    delete panel;
    return chosen;
}

} // namespace

QString CUI_OpenPanel(Tag tag, const QString &title, const QString &path, const QString &kinds)
{
    return chosenFile(tag, QFileDialog::AcceptOpen, title, path, kinds);
}

QString CUI_SavePanel(Tag tag, const QString &title, const QString &path, const QString &kinds)
{
    return chosenFile(tag, QFileDialog::AcceptSave, title, path, kinds);
}

void FilePanelSetAsks(Tag tag, bool asks)
{
    if (asks) {
        askingTags.insert(tag);
    } else {
        askingTags.remove(tag);
    }
}

} // namespace tetrad
