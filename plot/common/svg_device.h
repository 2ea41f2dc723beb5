// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/picture_size.h"

#include <QByteArray>
#include <QPaintDevice>

#include <memory>

namespace corvala::plot {

class SvgEngine;

/// Takes what is painted on it as an SVG document: texts as texts, lines and areas as paths that
/// are clipped as by the painter. The same painting gives the same bytes. Coordinates are pixels.
class SvgDevice : public QPaintDevice
{
public:
    explicit SvgDevice(const PictureSize& size);
    ~SvgDevice() override;

    QPaintEngine* paintEngine() const override;
    /// The document; to be asked for after painting has ended.
    QByteArray document() const;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    PictureSize m_size;
    std::unique_ptr<SvgEngine> m_engine;
};

} // namespace corvala::plot
