#include "widgets/mnemonics.h"

#include <QPushButton>

#include "widgets/picture_button.h"

namespace torvane {

namespace {

QString marked(QString caption, QString& taken) {
    if (caption.contains('&')) return caption;
    for (const bool initials : {true, false})
        for (qsizetype at = 0; at < caption.size(); ++at) {
            const QChar letter = caption[at].toLower();
            const bool initial = at == 0 || caption[at - 1].isSpace();
            if (!letter.isLetter() || initial != initials || taken.contains(letter)) continue;
            taken += letter;
            return caption.insert(at, '&');
        }
    return caption;
}

}  // namespace

void giveMnemonics(const QList<QAction*>& entries) {
    QString taken;
    for (QAction* entry : entries) entry->setText(marked(entry->text(), taken));
}

void giveMnemonics(const QWidget& window) {
    QString taken;
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        const auto* face = qobject_cast<PictureButton*>(button);
        if (!face || !face->pictureOnly()) button->setText(marked(face ? face->word() : button->text(), taken));
    }
}

}  // namespace torvane
