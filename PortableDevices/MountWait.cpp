// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/MountWait.h"

#include "PortableDevices/GlibPointers.h"

namespace devices {
namespace {

// The end of one asynchronous operation.
struct Completion
{
    GPtr<GAsyncResult> result;

    static void Store(GObject* /*source*/, GAsyncResult* result, gpointer self)
    {
        static_cast<Completion*>(self)->result = Share(result);
    }
    void Wait() const
    {
        while (!result)
            g_main_context_iteration(g_main_context_get_thread_default(), TRUE);
    }
};

} // namespace

HRESULT MountAndWait(GFile* root, GCancellable* cancellable)
{
    Completion end;
    GPtr<GError> error;
    g_file_mount_enclosing_volume(root, G_MOUNT_MOUNT_NONE, nullptr, cancellable,
                                  &Completion::Store, &end);
    end.Wait();
    const bool isDone =
        g_file_mount_enclosing_volume_finish(root, end.result.get(), ErrorOut(error));
    if (isDone || g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_ALREADY_MOUNTED))
        return S_OK;
    return FromGlibError(error.get());
}

HRESULT UnmountAndWait(GFile* root, GCancellable* cancellable)
{
    GPtr<GError> error;
    const GPtr<GMount> mount(g_file_find_enclosing_mount(root, cancellable, ErrorOut(error)));
    if (!mount)
        return S_OK;
    Completion end;
    g_mount_unmount_with_operation(mount.get(), G_MOUNT_UNMOUNT_NONE, nullptr, cancellable,
                                   &Completion::Store, &end);
    end.Wait();
    const bool isDone =
        g_mount_unmount_with_operation_finish(mount.get(), end.result.get(), ErrorOut(error));
    return isDone ? S_OK : FromGlibError(error.get());
}

} // namespace devices
