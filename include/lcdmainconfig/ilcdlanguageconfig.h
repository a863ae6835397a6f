// What the user sets at the panel and a factory image must not undo: the file "/userdata/log/lcd/ini/lcdsetting.ini".
// No value is cached, the file is the state. What a number means is for the panel to say. The order of the operations
// is a contract with the host.
#ifndef LCDMAINCONFIG_ILCDLANGUAGECONFIG_H
#define LCDMAINCONFIG_ILCDLANGUAGECONFIG_H

#include <utility>
#include <vector>

#include <QString>
#include <QStringList>

#include "lcdmainconfig/settings.h"

namespace LCD::MainConfig {

/// Entries are told as section/entry. With the store open, an entry that is absent or not a number reads as 0, a text
/// as empty, unless told otherwise; "No store" tells what a getter gives before readConfig has opened the file. A
/// getter that seeds the file is const all the same: the file is not the object's state. A setter ends with a flush to
/// the storage, which is its cost, reports no failure, and must not be called without a store. Any thread may call,
/// where no exception is told.
class ILcdLanguageConfig {
public:
    virtual ~ILcdLanguageConfig() = default;

    /// Opens the file, and first creates it, empty, with its directory, if it is missing. False, with a warning, if
    /// either cannot be made.
    virtual bool readConfig() = 0;

    /// Writes LanguageSetting/LanguageValue.
    virtual void setLanguage(const QString& language) = 0;
    /// LanguageSetting/LanguageValue. No store: empty.
    virtual QString getLanguage() = 0;

    /// Writes TBar/Tolerance.
    virtual void setTBarTolerance(const int& tolerance) = 0;
    /// TBar/Tolerance; an absent or empty entry is written as 100 and read so. No store: 100, nothing written.
    virtual int getTBarTolerance() = 0;
    /// Writes TBar/CalibrationMin from the first number and TBar/CalibrationMax from the second.
    virtual void setTBarCalibration(const std::pair<int, int>& calibration) = 0;
    /// TBar/CalibrationMin, then TBar/CalibrationMax; an absent or empty entry is written as 160 and 4040 and read so.
    /// No store: (160, 4040), nothing written.
    virtual std::pair<int, int> getTBarCalibration() = 0;

    /// The seven entries of RTSPSetting by number: 0 IPAddress, 1 MainStream, 2 SubStream, 3 Manufacturer, 4 PassWord,
    /// 5 Port, 6 UserName. Each absent or empty one is written with its default and read so. No store: the seven
    /// defaults, nothing written.
    virtual std::vector<std::pair<int, QString>> getRTSPSettingPara() = 0;

    /// Writes FnSetting/FnValue<index>, at once.
    virtual void setFnSettingValue(int index, int value) = 0;
    /// Writes FnSetting/FnValue<index> for every function button from 0, each with a flush of its own.
    virtual void setALLFnSettingValue(int value) = 0;
    /// FnSetting/FnValue<index>: the user's binding of a function button. No store: 0.
    virtual int getFnSettingValue(int index) = 0;
    /// Whether FnSetting/FnValue<index> is there, that is, whether the user ever bound that button. No store: false.
    virtual bool hasFnSettingValue(int index) = 0;
    /// Writes FnSetting/FnTarget<index>, at once.
    virtual void setFnSettingTargetValue(int index, int target) = 0;
    /// FnSetting/FnTarget<index>: what a function button acts on. No store: 0.
    virtual int getFnSettingTargetValue(int index) = 0;
    /// Writes FnSetting/FnTargetType<index>, at once.
    virtual void setFnSettingTargetTypeValue(int index, int targetType) = 0;
    /// FnSetting/FnTargetType<index>: the kind of that target. No store: 0.
    virtual int getFnSettingTargetTypeValue(int index) = 0;
    /// How many function buttons setALLFnSettingValue writes; 6 at first. Kept in memory only, and takes no lock, which
    /// is meant.
    virtual void setFnBtnMaxCount(int count) = 0;

    /// Writes ReturnToHomeSetting/ReturnToHomeValue.
    virtual void setReturnToHomeTime(int value) = 0;
    /// ReturnToHomeSetting/ReturnToHomeValue; no unit is fixed here. No store: 0.
    virtual int getReturnToHomeTime() = 0;

    /// Writes UserModeSetting/UserModeValue.
    virtual void setUserModeSettingValue(int value) = 0;
    /// UserModeSetting/UserModeValue. No store: 0.
    virtual int getUserModeSettingValue() = 0;

    /// Writes DevSetting/LockStatusValue.
    virtual void setDevLockStatusValue(int value) = 0;
    /// DevSetting/LockStatusValue. No store: 0.
    virtual int getDevLockStatusValue() = 0;

    /// Writes RecordStreamPreference/StartTriggerType.
    virtual void setStartRecordStreamTriggerType(int type) = 0;
    /// RecordStreamPreference/StartTriggerType: what starts recording and streaming. No store: 0.
    virtual int getStartRecordStreamTriggerType() = 0;
    /// Writes RecordStreamPreference/StopTriggerType.
    virtual void setStopRecordStreamTriggerType(int type) = 0;
    /// RecordStreamPreference/StopTriggerType: what stops recording and streaming. No store: 0.
    virtual int getStopRecordStreamTriggerType() = 0;

    /// Writes SourceSortPreference/SourceSortType.
    virtual void setSourceSortType(int type) = 0;
    /// SourceSortPreference/SourceSortType. No store: 0.
    virtual int getSourceSortType() = 0;

    /// Writes JumpFlag/Jump.
    virtual void setJumpFlag(int flag) = 0;
    /// JumpFlag/Jump. No store: 0.
    virtual int getJumpFlag() = 0;

    /// Whether the file has a section SourceCustomSort. No store: false.
    virtual bool hasSourceCustomSort() = 0;
    /// Writes one entry of SourceCustomSort, at once and without the flush. Only a name of two parts joined by "_"
    /// comes back from getSourceCustomSort.
    virtual void setSourceCustomSort(const QString& name, int value) = 0;
    /// The entries of SourceCustomSort whose name is two parts joined by "_"; others are skipped. None: empty. No
    /// store: empty.
    virtual std::vector<s_SourceCustomSort> getSourceCustomSort() = 0;
    /// Clears every entry of the named sections, at once and without the flush. Takes no lock, which is meant.
    virtual void removeGroups(const QStringList& groups) = 0;

    /// Writes ScreenLight/ScreenLightValue.
    virtual void setScreenLight(int value) = 0;
    /// ScreenLight/ScreenLightValue. No store: 0.
    virtual int getScreenLight() = 0;

    /// Writes KnobTimeOut/KnobTimeOutValue.
    virtual void setKnobTimeOut(int value) = 0;
    /// KnobTimeOut/KnobTimeOutValue; no unit is fixed here. No store: -1.
    virtual int getKnobTimeOut() = 0;

    /// Writes BackExitMVRTimeOut/BackExitMVRTimeOutValue.
    virtual void setBackExitMVRTimeOut(int value) = 0;
    /// BackExitMVRTimeOut/BackExitMVRTimeOutValue; no unit is fixed here. An absent or empty entry: 1500, nothing
    /// written. No store: 1500.
    virtual int getBackExitMVRTimeOut() = 0;
};

} // namespace LCD::MainConfig

#endif
