#include "qt/web/quick/RoundedTopItem.h"

#include <QSGGeometryNode>
#include <QSGTextureMaterial>
#include <QSGTextureProvider>
#include <vector>

#include "platform/render/RoundedTop.h"
#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

struct Picture {
  QSGTexture& texture;
  QSizeF size;
  double pixelRatio;
};

/// Shows `pixels` of the picture. The material takes the texture's nearest pixel: the texture may
/// have a row or a column more than the item has pixels.
QSGGeometryNode* makeShape(const std::vector<layout::Rect>& pixels, const Picture& picture) {
  const int count = static_cast<int>(pixels.size());
  auto* geometry = new QSGGeometry(QSGGeometry::defaultAttributes_TexturedPoint2D(), 6 * count);
  geometry->setDrawingMode(QSGGeometry::DrawTriangles);
  QSGGeometry::TexturedPoint2D* vertex = geometry->vertexDataAsTexturedPoint2D();
  for (const layout::Rect& frame : pixels) {
    const QRectF rect = toRect(frame);
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
  node->setFlags(QSGNode::OwnsGeometry | QSGNode::OwnsMaterial);
  return node;
}

/// Updates the texture before a frame is drawn.
class TopNode final : public QSGNode {
 public:
  TopNode(const Picture& picture, QSize pixels, double radius) : texture_(picture.texture) {
    setFlag(UsePreprocess);
    const auto levels = render::roundedTop(pixels.width(), pixels.height(), radius);
    for (std::size_t level = 1; level <= render::opaqueLevel; ++level) {
      if (levels[level].empty()) continue;
      auto* part = new QSGOpacityNode;  // costs a draw call
      part->setOpacity(double(level) / render::opaqueLevel);
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

RoundedTopItem::RoundedTopItem() {
  setFlag(ItemHasContents);
  connect(this, &RoundedTopItem::changed, this, &QQuickItem::update);
}

QSGNode* RoundedTopItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  delete old;
  QSGTextureProvider* provider = source_ ? source_->textureProvider() : nullptr;
  QSGTexture* texture = provider ? provider->texture() : nullptr;
  if (!texture || size().isEmpty()) return nullptr;
  return new TopNode({*texture, size(), pixelRatio_}, (size() * pixelRatio_).toSize(),
                     radius_ * pixelRatio_);
}

}  // namespace quorix::qt
