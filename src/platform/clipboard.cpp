#include "platform/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <memory>

namespace pitchcraft {

void CopyToClipboard(const Picture& picture) {
  static_cast<void>(picture.Drawing.Finished());  // raises the error
  auto data = std::make_unique<QMimeData>();
  data->setImageData(QImage::fromData(PictureBytes(picture, PictureFormat::kPng)));
  data->setData("image/svg+xml", PictureBytes(picture, PictureFormat::kSvg));
  QGuiApplication::clipboard()->setMimeData(data.release());
}

}  // namespace pitchcraft
