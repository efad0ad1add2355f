// Text typed into a field or chosen from a drop-down as a user does it.
#pragma once

#include <string>

class QComboBox;
class QWidget;

// Everything in the field selected, then the new text committed through the
// input method, the way Chinese text reaches a field, so that the field
// reports an edit. `field` is a line edit, a text edit or a plain text edit.
void TypeText(QWidget* field, const std::wstring& text);

// Chooses the entry of that text, as a pick in the open drop-down would,
// with the box reporting the choice; an editable box without such an entry
// gets the text typed. False when there is no such entry to choose.
bool ChooseEntry(QComboBox* box, const std::wstring& text);

// The message for a text that is no entry of the box, naming its entries.
std::wstring NoEntry(const QComboBox* box, const std::wstring& text);
