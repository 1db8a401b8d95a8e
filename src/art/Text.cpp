// SPDX-License-Identifier: GPL-3.0-or-later
// Fitting text: the lines are chosen by trying every split at the break points and keeping
// the one whose widest line is narrowest.
#include "art/Text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>

namespace gw::art {

QFont font(Face face, int pixelSize) {
    QFont f;
    switch (face) {
        case Face::Caption:
            f = QFont(QStringLiteral("DejaVu Sans Condensed"));
            f.setBold(true);
            break;
        case Face::Number:
            f = QFont(QStringLiteral("DejaVu Sans"));
            break;
        case Face::NumberBold:
            f = QFont(QStringLiteral("DejaVu Sans"));
            f.setBold(true);
            break;
        case Face::Title:
            f = QFont(QStringLiteral("DejaVu Serif"));
            f.setBold(true);
            break;
    }
    f.setPixelSize(pixelSize);
    // Unhinted outlines keep the layout the same at every device pixel ratio.
    f.setHintingPreference(QFont::PreferNoHinting);
    f.setStyleStrategy(QFont::PreferAntialias);
    return f;
}

QString money(int amount) {
    return QStringLiteral("$%1").arg(amount);
}

namespace {

// Pieces of the text that may end a line: a word with its hyphen, or a word before a space.
QStringList pieces(const QString& text) {
    QStringList out;
    QString cur;
    for (QChar c : text) {
        if (c == QLatin1Char(' ')) {
            if (!cur.isEmpty()) out << cur;
            cur.clear();
        } else {
            cur += c;
            if (c == QLatin1Char('-')) {
                out << cur;
                cur.clear();
            }
        }
    }
    if (!cur.isEmpty()) out << cur;
    return out;
}

QString joinPieces(const QStringList& ps, int from, int to) {
    QString s;
    for (int i = from; i < to; ++i) {
        if (!s.isEmpty() && !s.endsWith(QLatin1Char('-'))) s += QLatin1Char(' ');
        s += ps[i];
    }
    return s;
}

qreal widthOf(const QFontMetricsF& fm, const QString& s) {
    return fm.horizontalAdvance(s);
}

// The best split of the pieces into exactly n lines, or empty when there are too few.
QStringList bestSplit(const QStringList& ps, int n, const QFontMetricsF& fm) {
    const int k = static_cast<int>(ps.size());
    if (n > k) return {};
    QStringList best;
    qreal bestWidth = std::numeric_limits<qreal>::max();
    std::vector<int> cuts(static_cast<std::size_t>(n + 1));
    // Enumerate cut positions 0 = c0 < c1 < ... < cn = k.
    auto recurse = [&](auto&& self, int line, int start) -> void {
        if (line == n - 1) {
            cuts[static_cast<std::size_t>(line)] = start;
            cuts[static_cast<std::size_t>(n)] = k;
            QStringList lines;
            qreal w = 0;
            for (int i = 0; i < n; ++i) {
                lines << joinPieces(ps, cuts[static_cast<std::size_t>(i)],
                                    cuts[static_cast<std::size_t>(i + 1)]);
                w = std::max(w, widthOf(fm, lines.back()));
            }
            if (w < bestWidth) {
                bestWidth = w;
                best = lines;
            }
            return;
        }
        cuts[static_cast<std::size_t>(line)] = start;
        for (int next = start + 1; next <= k - (n - line - 1); ++next) self(self, line + 1, next);
    };
    if (n == 1) return {joinPieces(ps, 0, k)};
    cuts[0] = 0;
    for (int next = 1; next <= k - (n - 1); ++next) recurse(recurse, 1, next);
    return best;
}

qreal blockHeight(const QFontMetricsF& fm, int lines) {
    return fm.height() + (lines - 1) * fm.lineSpacing();
}

QFont styledFont(const TextStyle& style, int px) {
    QFont f = font(style.face, px);
    if (style.letterSpacing != 0) f.setLetterSpacing(QFont::AbsoluteSpacing, style.letterSpacing);
    return f;
}

}  // namespace

TextBox drawText(QPainter& p, const QRectF& box, const QString& text, const TextStyle& style) {
    const QStringList ps = pieces(text);
    QFont f;
    QStringList lines;
    int px = style.pixelSize;
    bool found = false;
    for (; px >= style.minPixelSize && !found; --px) {
        f = styledFont(style, px);
        const QFontMetricsF fm(f, p.device());
        for (int n = 1; n <= std::max(1, style.maxLines) && !found; ++n) {
            QStringList candidate = bestSplit(ps, n, fm);
            if (candidate.isEmpty()) break;
            qreal w = 0;
            for (const QString& l : candidate) w = std::max(w, widthOf(fm, l));
            if (w <= box.width() + 0.01 && blockHeight(fm, n) <= box.height() + 0.01) {
                lines = candidate;
                found = true;
            }
        }
        if (found) break;
    }
    if (!found) {
        px = style.minPixelSize;
        f = styledFont(style, px);
        lines = bestSplit(ps, std::min<int>(std::max(1, style.maxLines), ps.size()),
                          QFontMetricsF(f, p.device()));
    }
    const QFontMetricsF fm(f, p.device());
    const int n = static_cast<int>(lines.size());
    const qreal h = blockHeight(fm, n);
    qreal y0 = box.center().y() - h / 2;
    if (style.align & Qt::AlignTop) y0 = box.top();
    if (style.align & Qt::AlignBottom) y0 = box.bottom() - h;

    p.save();
    p.setFont(f);
    p.setPen(style.colour);
    QRectF bounds;
    for (int i = 0; i < n; ++i) {
        const qreal w = widthOf(fm, lines[i]);
        qreal x = box.center().x() - w / 2;
        if (style.align & Qt::AlignLeft) x = box.left();
        if (style.align & Qt::AlignRight) x = box.right() - w;
        const qreal top = y0 + i * fm.lineSpacing();
        p.drawText(QPointF(x, top + fm.ascent()), lines[i]);
        bounds |= QRectF(x, top, w, fm.height());
    }
    const QTransform t = p.worldTransform();
    p.restore();
    return {text, t.mapRect(bounds), t.mapRect(box), px * std::sqrt(std::abs(t.determinant()))};
}

void drawText(TextBoxes& out, QPainter& p, const QRectF& box, const QString& text,
              const TextStyle& style) {
    out.push_back(drawText(p, box, text, style));
}

}  // namespace gw::art
