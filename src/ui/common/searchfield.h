/// A field that filters what a list shows.
#pragma once

class QLineEdit;

/// Gives the field a magnifying glass and, while there is text, a button that clears it. The style's own
/// clear button would do, but it loads every image plugin when the field is made, a tenth of the program's
/// start.
void makeSearchField(QLineEdit &field);
