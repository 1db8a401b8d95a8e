// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QtQuestion.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

namespace gw::app {

bool QtQuestion::ask(const std::string& title, const std::string& text) {
    QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                    QString::fromStdString(text), QMessageBox::Yes | QMessageBox::No,
                    parent_ ? parent_() : nullptr);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool answerYesToQuestion() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return false;
    QAbstractButton* yes = box->button(QMessageBox::Yes);
    if (yes == nullptr) return false;
    yes->click();
    return true;
}

}  // namespace gw::app
