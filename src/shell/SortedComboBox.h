#pragma once
// A drop-down list that keeps its entries sorted as a list box of the
// desktop does: without regard to case, marks before digits before letters.
// So "(Form)" stands before every object name.
#include <QComboBox>

namespace tolva {

// True when a sorts before b in such a list.
bool ListTextLess(const QString& a, const QString& b);

class SortedComboBox : public QComboBox {
    Q_OBJECT
public:
    using QComboBox::QComboBox;

    // Inserts the text at its sorted place (after equal entries); returns
    // the index it took.
    int AddSorted(const QString& text);
};

}  // namespace tolva
