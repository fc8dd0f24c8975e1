#pragma once
// The about box: title, credits, contact address and four pictures; Ok closes it.
#include <QDialog>

namespace fuh {

class InfoWin : public QDialog {
    Q_OBJECT
  public:
    explicit InfoWin(QWidget* parent = nullptr);
};

} // namespace fuh
