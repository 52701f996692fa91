/// Data on labels, buttons and frames: shown as it stands, whatever marks it holds.
#pragma once

#include <QString>

class QLabel;

/// On a label with a buddy an ampersand would mark an access key, and text in angle brackets would be read as markup;
/// neither happens to `text`.
void ShowOnLabel(QLabel* label, const QString& text);
/// `text` for a button or the title of a frame, where an ampersand would mark an access key as well.
QString PlainCaption(const QString& text);
