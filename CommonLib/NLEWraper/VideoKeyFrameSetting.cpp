// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/VideoKeyFrameSetting.h"

#include "CommonLib/NLEWraper/EngineCall_p.h"

namespace {

/// The record's trailing number as conversions write it; changing one field keeps what was read.
constexpr std::int32_t kInterpolation = 1;
/// What every read starts from.
constexpr NLEKeyFrameRecord kPreset = {0, 0, 0, 0, 1, 1, 1, kInterpolation};

NLEKeyFrameRecord ToRecord(const VideoKeyFrameParam& param)
{
    return {param.time,          param.rotateAngle,    param.position.x(), param.position.y(),
            param.scale.width(), param.scale.height(), param.opacity,      kInterpolation};
}

VideoKeyFrameParam FromRecord(const NLEKeyFrameRecord& record)
{
    return {record.time,
            record.angle,
            record.opacity,
            {record.positionX, record.positionY},
            {record.scaleWidth, record.scaleHeight}};
}

int Count(INLEKeyFrameList* list)
{
    return EngineValue(0, list, &INLEKeyFrameList::GetCount);
}

/// Reads key frame \a index; \a param is written on success only.
bool Read(INLEKeyFrameList& list, int index, VideoKeyFrameParam& param)
{
    NLEKeyFrameRecord record = kPreset;
    if (list.GetKeyFrame(index, &record) != S_OK) // a positive status is a failure
        return false;
    param = FromRecord(record);
    return true;
}

} // namespace

VideoKeyFrameSetting::VideoKeyFrameSetting(NLEComPtr<INLETimeline> timeline)
    : m_timeline(std::move(timeline))
{
}

VideoKeyFrameSetting::VideoKeyFrameSetting(const VideoKeyFrameSetting& other) = default;
VideoKeyFrameSetting& VideoKeyFrameSetting::operator=(const VideoKeyFrameSetting& other) = default;
VideoKeyFrameSetting::~VideoKeyFrameSetting() = default;

void VideoKeyFrameSetting::SetTimeline(NLEComPtr<INLETimeline> timeline)
{
    m_timeline = std::move(timeline);
}

NLEComPtr<INLEKeyFrameList> VideoKeyFrameSetting::List() const
{
    return m_timeline.query<INLEKeyFrameList>();
}

NLEComPtr<INLEKeyFrameList> VideoKeyFrameSetting::ListWith(int index) const
{
    NLEComPtr<INLEKeyFrameList> list = List();
    if (index < 0 || index >= Count(list.get()))
        list.reset();
    return list;
}

bool VideoKeyFrameSetting::AddKeyFrame(const VideoKeyFrameParam& param, int& index)
{
    const auto list = List();
    const NLEKeyFrameRecord record = ToRecord(param);
    return list && SUCCEEDED(list->AddKeyFrame(&record, &index));
}

int VideoKeyFrameSetting::AddKeyFrame(const VideoKeyFrameParam& param)
{
    int index = -1;
    return AddKeyFrame(param, index) ? index : -1;
}

bool VideoKeyFrameSetting::DeleteKeyFrame(int index)
{
    const auto list = ListWith(index);
    return list && SUCCEEDED(list->DeleteKeyFrame(index));
}

void VideoKeyFrameSetting::ClearAllKeyFrame()
{
    EngineSet(List().get(), &INLEKeyFrameList::DeleteAll);
}

int VideoKeyFrameSetting::GetKeyFrameCount() const
{
    return Count(List().get());
}

QList<VideoKeyFrameParam> VideoKeyFrameSetting::GetAllKeyFrameParams() const
{
    QList<VideoKeyFrameParam> params;
    const auto list = List();
    const int count = Count(list.get());
    for (int index = 0; index < count; ++index) {
        VideoKeyFrameParam param;
        if (Read(*list, index, param))
            params.append(param);
    }
    return params;
}

bool VideoKeyFrameSetting::GetKeyFrameParam(int index, VideoKeyFrameParam& param) const
{
    const auto list = ListWith(index);
    return list && Read(*list, index, param);
}

VideoKeyFrameParam VideoKeyFrameSetting::GetKeyFrameParam(double time) const
{
    const auto list = List();
    NLEKeyFrameRecord record = kPreset;
    if (!list || FAILED(list->GetParamAt(time, &record)))
        return VideoKeyFrameParam();
    return FromRecord(record);
}

void VideoKeyFrameSetting::SetKeyFrameParam(int index, const VideoKeyFrameParam& param)
{
    const NLEKeyFrameRecord record = ToRecord(param);
    EngineSet(ListWith(index).get(), &INLEKeyFrameList::SetKeyFrame, index, &record);
}

int VideoKeyFrameSetting::GetKeyFrameIndex(const VideoKeyFrameParam& param) const
{
    const auto list = List();
    const int count = Count(list.get());
    for (int index = 0; index < count; ++index) {
        VideoKeyFrameParam found;
        if (Read(*list, index, found) && found == param)
            return index;
    }
    return -1;
}

bool VideoKeyFrameSetting::GetKeyFrameIndex(int frame, int frameCount, int& index) const
{
    const auto list = List();
    return list && list->FindIndex(frame, frameCount, &index) == S_OK;
}

VideoKeyFrameParam VideoKeyFrameSetting::ParamOrPreset(int index) const
{
    VideoKeyFrameParam param;
    GetKeyFrameParam(index, param);
    return param;
}

template <typename Field>
void VideoKeyFrameSetting::SetField(int index, Field VideoKeyFrameParam::*field, const Field& value)
{
    const auto list = ListWith(index);
    NLEKeyFrameRecord record = kPreset;
    if (!list || list->GetKeyFrame(index, &record) != S_OK)
        return;
    VideoKeyFrameParam param = FromRecord(record);
    param.*field = value;
    NLEKeyFrameRecord changed = ToRecord(param);
    changed.interpolation = record.interpolation;
    list->SetKeyFrame(index, &changed);
}

QPointF VideoKeyFrameSetting::GetPosition(int index) const
{
    return ParamOrPreset(index).position;
}

void VideoKeyFrameSetting::SetPosition(int index, QPointF position)
{
    SetField(index, &VideoKeyFrameParam::position, position);
}

QSizeF VideoKeyFrameSetting::GetScale(int index) const
{
    return ParamOrPreset(index).scale;
}

void VideoKeyFrameSetting::SetScale(int index, QSizeF scale)
{
    SetField(index, &VideoKeyFrameParam::scale, scale);
}

double VideoKeyFrameSetting::GetRotateAngle(int index) const
{
    return ParamOrPreset(index).rotateAngle;
}

void VideoKeyFrameSetting::SetRotateAngle(int index, double angle)
{
    SetField(index, &VideoKeyFrameParam::rotateAngle, angle);
}

double VideoKeyFrameSetting::GetOpacity(int index) const
{
    return ParamOrPreset(index).opacity;
}

void VideoKeyFrameSetting::SetOpacity(int index, double opacity)
{
    SetField(index, &VideoKeyFrameParam::opacity, opacity);
}

bool VideoKeyFrameSetting::HasNext(int index) const
{
    return index < GetKeyFrameCount() - 1;
}

bool VideoKeyFrameSetting::HasPrevious(int index) const
{
    return index != 0 && GetKeyFrameCount() >= 1;
}

bool VideoKeyFrameSetting::GetKeyFrameStatus() const
{
    const auto status = m_timeline.query<INLEKeyFrameStatus>();
    bool enabled = false;
    return status && status->GetStatus(&enabled) == S_OK && enabled;
}

bool VideoKeyFrameSetting::SetKeyFrameStatus(bool enabled)
{
    const auto status = m_timeline.query<INLEKeyFrameStatus>();
    return status && status->SetStatus(enabled) == S_OK; // a positive status is a failure
}
