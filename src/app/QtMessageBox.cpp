// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QtMessageBox.h"

#include <QMessageBox>

namespace gw::app {

void QtMessageBox::show(const std::string& title, const std::string& text, MessageIcon) {
    QMessageBox box(QMessageBox::Warning, QString::fromStdString(title),
                    QString::fromStdString(text), QMessageBox::Ok, parent_ ? parent_() : nullptr);
    box.exec();
}

}  // namespace gw::app
