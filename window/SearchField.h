#pragma once

#include <QLineEdit>

/// A field for words to look for, with a button that empties it, both named for who doesn't see
/// them.
class SearchField : public QLineEdit
{
    Q_OBJECT
public:
    explicit SearchField(QWidget *parent = nullptr);
};
