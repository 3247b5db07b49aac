#include "desktop/save_chooser.h"

#include <QDialogButtonBox>
#include <QPushButton>

#include <utility>

save_chooser::save_chooser(QWidget * parent, QString ending, const QString & name)
    : QFileDialog(parent), added_ending(std::move(ending))
{
    setAcceptMode(AcceptSave);
    setOption(DontConfirmOverwrite);  // that is the session's question
    setOption(DontUseNativeDialog);
    QLineEdit * const box = name_box();
    if (box == nullptr)
        return;
    box->setText(name);
    connect(box, &QLineEdit::textChanged, this, &save_chooser::offer_saving);
}

QLineEdit * save_chooser::name_box() const
{
    return findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

// The toolkit reads quotes as marks round several names, and finds none where there is one alone.
void save_chooser::offer_saving()
{
    const auto * const buttons = findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    QPushButton * const save = buttons == nullptr ? nullptr : buttons->button(QDialogButtonBox::Save);
    if (save != nullptr)
        save->setEnabled(!name_box()->text().isEmpty());
}

// A tilde alone is a letter of the name; in front of a separator it is the user's own folder.
QString save_chooser::path_of(const QString & typed) const
{
    if (typed.startsWith(QLatin1String("~/")))
        return QDir::homePath() + typed.mid(1);
    if (QDir::isAbsolutePath(typed))
        return typed;
    const QString folder = directory().absolutePath();
    return folder + (folder.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/")) + typed;
}

void save_chooser::accept()
{
    const QString typed = name_box() == nullptr ? QString() : name_box()->text();
    if (typed.isEmpty())
        return;
    const QDir shown_folder = directory();
    const bool is_folder = typed.endsWith(QLatin1Char('/')) || typed == QLatin1String("..");
    if (is_folder) {
        if (shown_folder.exists(typed)) {
            setDirectory(shown_folder.absoluteFilePath(typed));
            name_box()->clear();
        }
        return;
    }
    chosen = path_of(typed);
    if (!chosen.mid(chosen.lastIndexOf(QLatin1Char('/'))).contains(QLatin1Char('.')))
        chosen += added_ending;
    done(Accepted);
}
