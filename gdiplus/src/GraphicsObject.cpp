#include "gdiplus/GraphicsObject.h"
#include "gdiplus/Arguments.h"

namespace flat {

GraphicsObject::GraphicsObject(const raster::Surface& surface, REAL dpiX, REAL dpiY)
    : m_dpiX(dpiX), m_dpiY(dpiY), m_surface(surface) {
    m_renderer.emplace(surface);
}

GraphicsObject::GraphicsObject(HDC dc, HWND window)
    : m_dpiX(static_cast<REAL>(GetDeviceCaps(dc, LOGPIXELSX))),
      m_dpiY(static_cast<REAL>(GetDeviceCaps(dc, LOGPIXELSY))),
      m_dc(dc),
      m_window(window) {}

GraphicsObject::~GraphicsObject() {
    DropPicture();
    if (m_window)
        ReleaseDC(m_window, m_dc);
}

double GraphicsObject::PixelsPer(GpUnit unit) const {
    switch (unit) {
        case UnitPoint:
            return m_dpiX / 72.0;
        case UnitInch:
            return m_dpiX;
        case UnitDocument:
            return m_dpiX / 300.0;
        case UnitMillimeter:
            return m_dpiX / 25.4;
        default:
            return 1;
    }
}

raster::Matrix GraphicsObject::PageToDevice() const {
    const double pixels = PixelsPer(m_settings.unit) * m_settings.scale;
    return raster::Matrix::Scaling(pixels, pixels * m_dpiY / m_dpiX) * m_settings.container;
}

raster::IntRect GraphicsObject::Bounds() const {
    if (!m_dc)
        return m_surface.Bounds();
    RECT box;
    if (GetClipBox(m_dc, &box) == ERROR)
        return {};
    return {box.left, box.top, box.right, box.bottom};
}

const raster::Region& GraphicsObject::Visible() {
    // What a device context shows may change between two calls.
    if (m_dc || !m_visible)
        m_visible = m_settings.clip.Pixels({}, Bounds());
    return *m_visible;
}

void GraphicsObject::DropPicture() {
    m_renderer.reset();
    if (m_memory) {
        SelectObject(m_memory, m_before);
        DeleteDC(m_memory);
        DeleteObject(m_picture);
    }
    m_memory = nullptr;
    m_covered = {};
}

// Sees to a picture of the device context for all pixels of `box`.
void GraphicsObject::Cover(const raster::IntRect& box) {
    if (m_renderer && Intersect(m_covered, box) == box)
        return;
    DropPicture();
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = box.Width();
    info.bmiHeader.biHeight = -box.Height();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    m_picture = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    Require(m_picture && bits, OutOfMemory);
    m_memory = CreateCompatibleDC(m_dc);
    if (!m_memory) {
        DeleteObject(m_picture);
        throw std::bad_alloc();
    }
    m_before = SelectObject(m_memory, m_picture);
    m_covered = box;
    m_surface = {static_cast<uint8_t*>(bits), ptrdiff_t{4} * box.Width(), box.Width(), box.Height(),
                 raster::Format::Opaque32};
    m_renderer.emplace(m_surface);
}

void GraphicsObject::Draw(const raster::Rect& around,
                          const std::function<void(raster::Renderer&, const raster::Matrix&)>& body) {
    const auto pixel = [](double value, double otherwise) {
        const double most = raster::kFarthestPixel;
        return static_cast<int>(std::isnan(value) ? otherwise : (std::max)(-most, (std::min)(most, value)));
    };
    const double most = raster::kFarthestPixel;
    const raster::IntRect touched =
        Intersect({pixel(std::floor(around.left) - 1, -most), pixel(std::floor(around.top) - 1, -most),
                   pixel(std::ceil(around.right) + 2, most), pixel(std::ceil(around.bottom) + 2, most)},
                  Visible().Bounds());
    if (touched.Empty())
        return;
    if (m_dc)
        Cover(Bounds());
    raster::Renderer& renderer = *m_renderer;
    raster::Settings& style = renderer.Style();
    const GraphicsSettings& own = m_settings;
    style.edges = own.smoothing == SmoothingModeHighQuality || own.smoothing == SmoothingModeAntiAlias ||
                          own.smoothing == SmoothingModeAntiAlias8x8
                      ? raster::Edges::Smooth
                      : raster::Edges::Sharp;
    style.origin = own.offset == PixelOffsetModeHalf || own.offset == PixelOffsetModeHighQuality
                       ? raster::Settings::Origin::Corner
                       : raster::Settings::Origin::Centre;
    style.mode = own.compositing == CompositingModeSourceCopy ? raster::Settings::Mode::Copy
                                                              : raster::Settings::Mode::Over;
    if (!m_dc) {
        renderer.SetClip(Visible());
        body(renderer, ToDevice());
        return;
    }
    // What is there is needed where the drawing lets it through.
    const int x = m_covered.left, y = m_covered.top;
    BitBlt(m_memory, touched.left - x, touched.top - y, touched.Width(), touched.Height(), m_dc, touched.left,
           touched.top, SRCCOPY);
    raster::Region clip = Visible();
    clip.Move(-x, -y);
    renderer.SetClip(clip);
    body(renderer, ToDevice() * raster::Matrix::Translation(-x, -y));
    BitBlt(m_dc, touched.left, touched.top, touched.Width(), touched.Height(), m_memory, touched.left - x,
           touched.top - y, SRCCOPY);
}

std::unique_ptr<raster::Paint> GraphicsObject::Paint(const Brush& brush) const {
    const raster::Matrix shift = raster::Matrix::Translation(-m_covered.left, -m_covered.top);
    return brush.Paint(
        {ToDevice() * shift, m_settings.originX - m_covered.left, m_settings.originY - m_covered.top});
}

void GraphicsObject::Fill(const raster::Path& path, raster::FillRule rule, const Brush& brush) {
    if (path.Empty())
        return;
    Draw(MapBounds(ToDevice(), path.ControlBounds()),
         [&](raster::Renderer& renderer, const raster::Matrix& matrix) {
             renderer.Fill(path, matrix, rule, *Paint(brush));
         });
}

void GraphicsObject::FillRectangle(const raster::Rect& rect, const Brush& brush) {
    Draw(MapBounds(ToDevice(), rect), [&](raster::Renderer& renderer, const raster::Matrix& matrix) {
        renderer.FillRectangle(rect, matrix, *Paint(brush));
    });
}

void GraphicsObject::Stroke(const raster::Path& path, const PenObject& pen) {
    if (path.Empty())
        return;
    const raster::Matrix device = ToDevice();
    const bool inWorld = pen.unit == UnitWorld;
    const double width = inWorld ? pen.width : pen.width * PixelsPer(pen.unit);
    const double scale = inWorld ? device.LargestScale() : 1;
    // Miters, square caps and anchors reach beyond half the width.
    const double reach = std::abs(width) * scale * (std::max)(3.0, double{pen.miterLimit} / 2) + 1;
    raster::Rect around = MapBounds(device, path.ControlBounds());
    around = {around.left - reach, around.top - reach, around.right + reach, around.bottom + reach};
    Draw(around, [&](raster::Renderer& renderer, const raster::Matrix& matrix) {
        const auto paint = Paint(*pen.brush);
        if (inWorld) {
            renderer.Stroke(path, pen.Line(width), matrix, *paint);
            return;
        }
        raster::Path mapped = path;
        mapped.Transform(matrix);
        renderer.Stroke(mapped, pen.Line(width), {}, *paint);
    });
}

UINT GraphicsObject::Save() {
    m_saved.push_back({++m_lastSaved, m_settings});
    return m_lastSaved;
}

void GraphicsObject::Restore(UINT state) {
    for (size_t i = m_saved.size(); i-- > 0;) {
        if (m_saved[i].number != state)
            continue;
        m_settings = m_saved[i].settings;
        m_saved.resize(i);
        ClipChanged();
        return;
    }
}

UINT GraphicsObject::BeginContainer(const raster::Matrix& toPage) {
    const UINT number = Save();
    GraphicsSettings inner;
    inner.container = toPage * ToDevice();
    inner.unit = UnitPixel;
    inner.clip = m_settings.clip;
    m_settings = inner;
    return number;
}

}  // namespace flat
