/// Makes pictures for the panel: PNG files of 24-bit RGB pixels at a wanted size.
#pragma once

#include "model/conversiontool.h"

namespace vorlinmodel {

/// Any thread; several may convert at the same time.
class ImageConverter
{
public:
    explicit ImageConverter(ConverterOptions options = {});

    /// Converts the picture @p source (of a video, its first picture) to @p width x @p height pixels,
    /// whatever its proportions. Blocks the calling thread: up to the time limit, 30 s.
    /// @return the path of a new file. After a failure there is none, and nothing is left behind.
    ConversionResult transferImage(const QString &source, int width, int height,
                                   const ConversionControl &control = {});

private:
    struct Job;
    ConversionError convert(Job job, bool needsUprightCopy, const ConversionControl &control) const;
    ConversionError run(const Job &job, const ConversionControl &control) const;

    const ConverterOptions mOptions;
    OutputNames mNames;
};

} // namespace vorlinmodel
