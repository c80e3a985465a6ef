#include "qt/web/quick/RoundedTop.h"

#include <QSGGeometryNode>
#include <QSGTextureMaterial>
#include <QSGTextureProvider>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace quorix::qt {
namespace {

constexpr int kLevels = 8;  ///< of opacity at the curve; each costs a draw call

/// The pixels of each level of opacity, as rectangles. The last level is opaque.
using Levels = std::array<std::vector<QRectF>, kLevels + 1>;

/// The level of a pixel by how far its middle is inside the curve. Row and column count from the
/// corner.
int levelAt(int column, int row, double radius) {
  const double distance =
      std::hypot(std::max(0.0, radius - column - 0.5), std::max(0.0, radius - row - 0.5));
  return static_cast<int>(std::lround(std::clamp(radius - distance + 0.5, 0.0, 1.0) * kLevels));
}

Levels levelsOf(QSize pixels, double radius) {
  Levels levels;
  const int rows = std::min(static_cast<int>(std::ceil(radius)), pixels.height());
  for (int row = 0; row < rows; ++row) {
    int column = 0;
    for (; column < pixels.width() / 2; ++column) {
      const int level = levelAt(column, row, radius);
      if (level == kLevels) break;
      levels[level].emplace_back(column, row, 1, 1);
      levels[level].emplace_back(pixels.width() - 1 - column, row, 1, 1);
    }
    levels[kLevels].emplace_back(column, row, pixels.width() - 2 * column, 1);
  }
  levels[kLevels].emplace_back(0, rows, pixels.width(), pixels.height() - rows);
  return levels;
}

struct Picture {
  QSGTexture& texture;
  QSizeF size;
  double pixelRatio;
};

/// Shows `pixels` of the picture. The material takes the texture's nearest pixel: the texture may
/// have a row or a column more than the item has pixels.
QSGGeometryNode* makeShape(const std::vector<QRectF>& pixels, const Picture& picture) {
  const int count = static_cast<int>(pixels.size());
  auto* geometry = new QSGGeometry(QSGGeometry::defaultAttributes_TexturedPoint2D(), 6 * count);
  geometry->setDrawingMode(QSGGeometry::DrawTriangles);
  QSGGeometry::TexturedPoint2D* vertex = geometry->vertexDataAsTexturedPoint2D();
  for (const QRectF& rect : pixels) {
    for (const QPointF corner : {rect.topLeft(), rect.bottomLeft(), rect.topRight(),
                                 rect.topRight(), rect.bottomLeft(), rect.bottomRight()}) {
      const QPointF at = corner / picture.pixelRatio;
      vertex++->set(float(at.x()), float(at.y()), float(at.x() / picture.size.width()),
                    float(at.y() / picture.size.height()));
    }
  }
  auto* material = new QSGTextureMaterial;
  material->setTexture(&picture.texture);
  auto* node = new QSGGeometryNode;
  node->setGeometry(geometry);
  node->setMaterial(material);
  node->setFlags(QSGNode::OwnsGeometry | QSGNode::OwnsMaterial | QSGNode::OwnedByParent);
  return node;
}

/// Updates the texture before a frame is drawn.
class TopNode final : public QSGNode {
 public:
  TopNode(const Picture& picture, QSize pixels, double radius) : texture_(picture.texture) {
    setFlag(UsePreprocess);
    const Levels levels = levelsOf(pixels, radius);
    for (int level = 1; level <= kLevels; ++level) {
      if (levels[level].empty()) continue;
      auto* part = new QSGOpacityNode;
      part->setOpacity(double(level) / kLevels);
      part->appendChildNode(makeShape(levels[level], picture));
      appendChildNode(part);
    }
  }

  void preprocess() override {
    if (auto* changing = qobject_cast<QSGDynamicTexture*>(&texture_)) changing->updateTexture();
  }

 private:
  QSGTexture& texture_;
};

}  // namespace

RoundedTop::RoundedTop() {
  setFlag(ItemHasContents);
  connect(this, &RoundedTop::changed, this, &QQuickItem::update);
}

void RoundedTop::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.size() != before.size()) update();
}

QSGNode* RoundedTop::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  delete old;
  QSGTextureProvider* provider = source_ ? source_->textureProvider() : nullptr;
  QSGTexture* texture = provider ? provider->texture() : nullptr;
  if (!texture || size().isEmpty()) return nullptr;
  return new TopNode({*texture, size(), pixelRatio_}, (size() * pixelRatio_).toSize(),
                     radius_ * pixelRatio_);
}

}  // namespace quorix::qt
