#include "grid/ui/file_text.h"

#include <QStringDecoder>

namespace lunavox {

QString file_text(std::string_view bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = utf8(view);
  return utf8.hasError() ? QString::fromLatin1(view) : text;
}

}  // namespace lunavox
