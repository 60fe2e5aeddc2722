/// Function ids (fid): what a key does. The panel receives them unchanged.
#pragma once

namespace vorlinmodel {

inline constexpr int HOME_PAGE_FID = 1;
inline constexpr int OPEN_FILE_FID = 2;
inline constexpr int OPEN_WEB_FID = 3;
inline constexpr int MULTIPLE_ACTIONS_FID = 4;
inline constexpr int TEXT_OUTPUT_FID = 15;
inline constexpr int KEY_COMBINATION_FID = 16;
inline constexpr int VIDEO_FID = 17; ///< offered by the editor, in neither list of the catalogue
inline constexpr int CHILDREN_PAGE_FID = 18;
inline constexpr int RETURN_MAIN_FID = 19;
inline constexpr int TIME_DELAY_FID = 100; ///< only a step of multiple actions

enum DisplayMode { NoSelfLocking = 0, SelfLocking = 1 };
enum ImageEffects { NoEffect = 0, ImageZooming = 1, ColourInversion = 2, Marquee = 3 };
enum TitleAlignment { AlignBottom = 0, AlignCenter = 1, AlignTop = 2 };
enum DisplayImageType { DefaultImage = 0, CustomImage = 1 };

} // namespace vorlinmodel
