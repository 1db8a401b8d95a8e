// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/StoryView.h"

#include <QPainter>
#include <QPushButton>

#include "art/Palette.h"
#include "art/Text.h"
#include "art/Tokens.h"
#include "windows/GameRun.h"

namespace gw::view {

namespace {

constexpr QSize kSize{640, 560};
constexpr int kChartHeight = 360;

}  // namespace

StoryView::StoryView(Dispatch& dispatch, GameRun& run)
    : dispatch_(dispatch),
      run_(run),
      watchAgain_(new QPushButton(QStringLiteral("Watch the game again"), this)) {
    setWindowTitle(QStringLiteral("The story of the game"));
    setFixedSize(kSize);
    watchAgain_->setGeometry(kSize.width() - 196, kSize.height() - 44, 180, 30);
    connect(watchAgain_, &QPushButton::clicked, this,
            [this] { dispatch_.click([this] { run_.watchAgain(); }); });
}

std::vector<art::ChartLine> StoryView::chartLines() const {
    std::vector<art::ChartLine> lines;
    for (const StoryPlayer& p : run_.story().players()) {
        art::ChartLine line;
        line.name = QString::fromStdString(p.name);
        line.token = p.token;
        line.worth.assign(p.worth.begin(), p.worth.end());
        line.bankruptAt = p.bankruptAfterRound;
        lines.push_back(std::move(line));
    }
    return lines;
}

void StoryView::refresh() {
    const bool shown = run_.gameEnd().isVisible() && run_.story().isOver();
    if (shown != isVisible()) setVisible(shown);
    watchAgain_->setEnabled(run_.canWatchAgain());
    if (shown) update();
}

void StoryView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), art::colour::cream);
    art::paintStoryChart(p, QRectF(8, 8, width() - 16, kChartHeight), chartLines());
    const GameStory& story = run_.story();
    const std::vector<std::string> figures = story.figureLines();
    const art::TextStyle style{art::Face::Number, 13, art::colour::ink,
                               Qt::AlignLeft | Qt::AlignVCenter};
    // The lines of the players come last, in their order, each after the player's token.
    const std::size_t firstPlayer = figures.size() - story.players().size();
    qreal y = kChartHeight + 20;
    for (std::size_t i = 0; i < figures.size(); ++i) {
        qreal left = 20;
        if (i >= firstPlayer) {
            art::paintToken(p, QRectF(left, y + 1, 18, 18), story.players()[i - firstPlayer].token);
            left += 24;
        }
        art::drawText(p, QRectF(left, y, width() - left - 20, 20),
                      QString::fromStdString(figures[i]), style);
        y += 21;
    }
}

}  // namespace gw::view
