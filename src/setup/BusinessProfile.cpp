#include "setup/BusinessProfile.h"

#include "runtime/Numbers.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

bool LoadBusinessData(CommonDiskRoutines& disk, BusinessProfile& business) {
  if (!disk.FileExists(u"/MyBusinessData.txt"_s)) return false;
  ListReader file = disk.OpenInputFile(u"/MyBusinessData.txt"_s);
  for (const auto field : BusinessStrings) business.*field = file.ReadString();
  return true;
}

void SaveBusinessData(CommonDiskRoutines& disk, BusinessProfile& business, const std::array<QString, 9>& boxes) {
  ListWriter file;
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    business.*BusinessStrings[i] = boxes[i];
    file.Field(boxes[i]);
  }
  file.EndLine();
  disk.SaveFile(u"/MyBusinessData.txt"_s, file.Content(), BackupCopy::Kept);
}

void SetAddressStyle(BusinessProfile& business) {
  const bool hasName = !business.BusinessName.isEmpty();
  const bool hasPostal = !business.BusinessPostal.isEmpty();
  // The caption gets the opposite of the style that is wanted; the toggle then turns it over.
  if (!hasPostal && !hasName) business.AddressStyleCaption = u"International Style Address"_s;
  if (IsNumeric(business.BusinessPostal)) business.AddressStyleCaption = u"International Style Address"_s;
  if (hasName) {
    business.AddressStyleCaption = hasPostal ? u"International Style Address"_s : u"USA Style Address"_s;
  }
  ToggleAddressStyle(business);
}

void ToggleAddressStyle(BusinessProfile& business) {
  const bool usaStyle = !business.IsUsaStyle();
  business.AddressStyleCaption = usaStyle ? u"USA Style Address"_s : u"International Style Address"_s;
  if (business.UseAddressStyle) business.UseAddressStyle(usaStyle);
}
