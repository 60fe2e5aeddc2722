/// The fixed log lines of the editor. Other tools read them: blanks and spelling stay as they are.
#pragma once

namespace EditorLogText {

// Descriptors and grids
inline constexpr char DescriptorLayout[] = "----mLayoutId=%d";
inline constexpr char DescriptorPage[] = "----mPageId=%d";
inline constexpr char DescriptorKey[] = "----mKeyId=%d";
inline constexpr char DescriptorBitMap[] = "----mBitMap=%u";
inline constexpr char DescriptorCount[] = "----mPhyKeyCount=%d";
inline constexpr char GridSetup[] =
    "KeyboardWidget::setup  LayoutId:%d pageid:%d\n"; // the two blanks are wanted
inline constexpr char CustomLayoutStart[] = "-----setupCustomLayout--layoutid[%d]--start\n";
inline constexpr char CustomLayoutRead[] = "------nNum/strName=%d/%s";
inline constexpr char CustomLayoutEnd[] = "-----setupCustomLayout--layoutid[%d]--end\n";
inline constexpr char CellSetupFailed[] = "setup key widget error\n";
inline constexpr char UpdateKeyIcon[] = "--updateKeyIcon--------[%d][%d][%d][%u]\n";
inline constexpr char GridDataChange[] = "KeyboardWidget::onDataChangeHandler  lid:%d kid:%d  fid:%d\n";
inline constexpr char GridDoubleClick[] = "----onButtonDoubleClicked----------";
inline constexpr char GridDoubleClicked[] = "KeyboardWidget::onButtonDoubleClicked  lid:%d kid:%d  fid:%d\n";

// Cells
inline constexpr char UpdateFid[] = "-------updateFid------mFId=[%d]\n";
inline constexpr char CellDrop[] = "------------mAttr[layoutId=%d][pageid=%d][keyid=%d],mFid[%d]\n";
inline constexpr char DropFunction[] = "KeyWidget::dropEvent LeftButton nFid:%d\n";
inline constexpr char DropOnFreeKey[] = "KeyWidget::dropEvent LeftButton delete old keyattr nFid:%d\n";
inline constexpr char DropPicture[] = "keyWidget::dropEvent LeftButton Data1:%s\n";
inline constexpr char DropVideo[] = "vorlinMimiData.strData2[%s]\n";
inline constexpr char DropVideoSize[] = "vorlinMimiData.strData2[%lld][%lld]\n"; // bytes, and bytes / 10240
inline constexpr char DoubleClick[] = "---mouseDoubleClickEvent---";
inline constexpr char CellClicked[] = "KeyWidget::onButtonClicked\n";
inline constexpr char DeleteAction[] = "KeyWidget::onDeleteActionHandler\n";
inline constexpr char DeleteKey[] = " delete keyattr nFid:%d %d %d %d\n";
inline constexpr char DeleteActions[] = " delActionsByKeyId nFid:%d\n";
inline constexpr char DeleteChildPage[] = " CHILDREN_PAGE_FID\n";
inline constexpr char DeleteAttr[] = "KeyWidget::deleteAttr nFid:%d\n";

// The page with the function list, the grids and the two editors.
inline constexpr char SetupFuncList[] = "setup func list frame\n";
inline constexpr char SetupFuncListError[] = "setup func list frame error\n";
inline constexpr char SetupLayouts[] = "setup btn layout frame\n";
inline constexpr char SetupLayoutsError[] = "setup btn layout frame error\n";
inline constexpr char SetupAttributes[] = "setup attr frame\n";
inline constexpr char SetupAttributesError[] = "setup attr frame error\n";
inline constexpr char SetupMultiActions[] = "setup MultipleActionWidget\n";
inline constexpr char SetupMultiActionsError[] = "setup MultipleActionWidget error\n";
inline constexpr char SetupGridError[] = "setup keyboard layoutid:%d pageid:%d error\n";
inline constexpr char SetLayoutAndPage[] =
    "-----setKeyboardCurLayoutAndPage-------nLayoutId[%d]/mKeyboardList.size=%d\n";
inline constexpr char PageBeyondMaximum[] = "setKeyboardCurLayoutAndPage nPageId[%d] > mMaxPage[%d]!";
inline constexpr char SelectPage[] = "-------onKeyboardSelPageButtonClicked-----nSelPageId=%d";
inline constexpr char OpenChildPage[] =
    "--double click---FunctionConfigWidget---CHILDREN_PAGE_FID---------nKeyoutId=%d";
inline constexpr char ChildPageEntry[] = "nSelLayoutId/nSelPageId=%d %d\n";
inline constexpr char ReturnToMain[] = "--double click---FunctionConfigWidget---RETURN_MAIN_FID---------";
inline constexpr char ConfigurationRead[] = "-----------MD_FUNCTION_CODE_READ_CONFIGFILE-----";

// A piece of a layout's background.
inline constexpr char PieceCells[] = "------------nSelRow/nSelCol=%d/%d\n";
inline constexpr char PiecePixels[] = "------------newWidth/newHeight=%d/%d\n";

} // namespace EditorLogText
