// The one instance a batch tool's command keeps: each command takes the
// dialog left from the last one away with its state and opens a new one.
#pragma once

#include <QPointer>

template <typename Dialog>
void ShowInSlot(QPointer<Dialog>& slot) {
  if (slot) {
    slot->hide();
    slot->deleteLater();
  }
  slot = new Dialog();
  slot->OnInitDialog();
  slot->show();
}
