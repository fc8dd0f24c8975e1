#pragma once
// The about box. There is only ever one; asking for it again brings the open one forward.
#include <QDialog>

namespace fuh {

class InfoWin : public QDialog {
    Q_OBJECT
  public:
    explicit InfoWin(QWidget* parent = nullptr);

    static void zeigen(QWidget* parent);
    // The open box, or nullptr.
    static InfoWin* offen();
};

} // namespace fuh
