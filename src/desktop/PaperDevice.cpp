#include "desktop/PaperDevice.h"

#include <map>
#include <optional>
#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include "desktop/PackedColor.h"
#include "desktop/PaperFonts.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int TwipsPerInch = 1440;

void PrepareLayout(QPagedPaintDevice& device, bool portrait) {
  const auto orientation = portrait ? QPageLayout::Portrait : QPageLayout::Landscape;
  QPageLayout layout(QPageSize(QPageSize::Letter), orientation, {});
  layout.setMode(QPageLayout::FullPageMode);
  device.setPageLayout(layout);
}

/// The pictures of a job by the bytes of their files.
using PictureMap = std::map<QByteArray, QImage>;

/// Throws where one can't be read. A painter that ends submits what it has, even half a page: so this comes before it.
PictureMap PicturesOf(const PaperJob& job) {
  PictureMap pictures;
  for (const PaperPage& page : job.Pages) {
    for (const PaperMark& mark : page) {
      const auto* picture = std::get_if<PaperPicture>(&mark);
      if (picture == nullptr || pictures.contains(picture->Picture)) continue;
      const QImage image = QImage::fromData(picture->Picture);
      if (image.isNull())
        throw RuntimeError(ErrorNumber::PrinterError, u"the logo"_s, u"It can't be read as a picture."_s);
      pictures.emplace(picture->Picture, image);
    }
  }
  return pictures;
}

/// Puts marks on a begun page; a pen or font that is set already isn't set again.
class MarkPainter {
 public:
  MarkPainter(QPainter& painter, PaperFonts& fonts, const PictureMap& pictures)
      : m_painter(painter), m_fonts(fonts), m_pictures(pictures) {}

  void operator()(const PaperText& mark) {
    const PaperFonts::Face& face = m_fonts.Get(mark.Font);
    if (m_font != mark.Font) m_painter.setFont(face.Font);
    m_font = mark.Font;
    SetPen(mark.Color, 0);
    m_painter.drawText(QPointF(static_cast<qreal>(mark.X), static_cast<qreal>(mark.Y) + face.Metrics.ascent()),
                       mark.Text);
  }

  void operator()(const PaperRule& mark) {
    SetPen(mark.Color, mark.DrawWidth);
    if (mark.IsBox)
      m_painter.drawRect(QRect(QPoint(mark.X1, mark.Y1), QSize(mark.X2 - mark.X1, mark.Y2 - mark.Y1)));
    else
      m_painter.drawLine(mark.X1, mark.Y1, mark.X2, mark.Y2);
  }

  void operator()(const PaperPicture& mark) { m_painter.drawImage(mark.Place, m_pictures.at(mark.Picture)); }

 private:
  void SetPen(quint32 color, int width) {
    if (m_penColor == color && m_penWidth == width) return;
    m_painter.setPen(QPen(ColorFromPacked(color), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    m_penColor = color;
    m_penWidth = width;
  }

  QPainter& m_painter;
  PaperFonts& m_fonts;
  std::optional<PaperFont> m_font;
  std::optional<quint32> m_penColor;
  int m_penWidth = 0;
  const PictureMap& m_pictures;
};
}  // namespace

void PrepareSheet(QPdfWriter& device, bool portrait) {
  PrepareLayout(device, portrait);
  device.setResolution(TwipsPerInch);
}

void PrepareSheet(QPrinter& device, bool portrait) {
  PrepareLayout(device, portrait);
  device.setFullPage(true);
  device.setResolution(TwipsPerInch);
}

void DrawJob(const PaperJob& job, QPagedPaintDevice& device, PaperFonts& fonts, const Progress& progress) {
  const PictureMap pictures = PicturesOf(job);
  const auto failed = [] { return RuntimeError(ErrorNumber::PrinterError, {}); };
  QPainter painter;
  if (!painter.begin(&device)) throw failed();
  painter.setRenderHint(QPainter::LosslessImageRendering);  // A logo of few colours stays crisp.
  MarkPainter marks(painter, fonts, pictures);
  const auto all = static_cast<qint64>(job.Pages.size());
  qint64 done = 0;
  for (const PaperPage& page : job.Pages) {
    if (done > 0 && !device.newPage()) throw failed();
    for (const PaperMark& mark : page) std::visit(marks, mark);
    ++done;
    if (progress && !progress(done, all)) throw RuntimeError(ErrorNumber::DialogCancelled, {});
  }
  if (!painter.end()) throw failed();
}

QByteArray PdfOf(const PaperJob& job, bool portrait, PaperFonts& fonts, const Progress& progress) {
  QBuffer content;
  content.open(QIODevice::WriteOnly);
  QPdfWriter writer(&content);
  PrepareSheet(writer, portrait);
  writer.setCreator(u"Karvex Invoicer"_s);
  writer.setTitle(job.Title);
  DrawJob(job, writer, fonts, progress);
  return content.data();
}

void PrintJob(const PaperJob& job, QPrinter& device, bool portrait, PaperFonts& fonts, const Progress& progress) {
  // What a printer was given goes out when its painter ends, and it knows no abort on these systems. So all pages are
  // drawn for nobody first: there the user can stop, and on paper comes the whole job or nothing.
  if (progress) PdfOf(job, portrait, fonts, PartOf(progress, 0, 2));
  PrepareSheet(device, portrait);
  DrawJob(job, device, fonts, [told = PartOf(progress, 1, 2)](qint64 done, qint64 total) mutable {
    // After a stop that came too late the box is gone, and isn't told any more.
    if (told && !told(done, total)) told = {};
    return true;
  });
}
