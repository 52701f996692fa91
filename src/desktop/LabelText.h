/// Data on a label: shown as it stands, whatever marks it holds.
#pragma once

class QLabel;
class QString;

/// On a label with a buddy an ampersand would mark an access key, and text in angle brackets would be read as markup;
/// neither happens to `text`.
void ShowOnLabel(QLabel* label, const QString& text);
