// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// Everything a host may use of the library.

#include "CommonLib/BaseLog.h"
#include "CommonLib/CommonLibExport.h"
#include "CommonLib/FileOperation.h"
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/FAudioStreamProcessHelper.h"
#include "CommonLib/NLEWraper/FMixerSettingDelegate.h"
#include "CommonLib/NLEWraper/FTimelineBlendingHelper.h"
#include "CommonLib/NLEWraper/FTimelineTransformHelper.h"
#include "CommonLib/NLEWraper/FVideoStreamProcessHelper.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "CommonLib/PathOperation.h"
#include "CommonLib/QAESEncryption.h"
#include "CommonLib/QuaZipOperate.h"
#include "CommonLib/RegexOperation.h"
#include "CommonLib/StringOperation.h"
#include "CommonLib/XmlOperation.h"
