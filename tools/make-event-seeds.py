#!/usr/bin/env python3
"""Writes the seeds of the event-sequence fuzzer into fuzz/seeds-events/.

A seed is a dialog file, a NUL byte, the form of the first build and then
actions of four bytes: kind, a, b, c (see fuzz/ActionTape.h for the kinds and
fuzz/DialogSession.cpp for what each operand picks).
"""
import pathlib

KINDS = ["WriteField", "QtMouse", "QtKey", "CloseWindow", "ScenePointer", "SceneKey", "InsertChild",
         "RemoveChild", "ReplaceChild", "MoveChild", "RemoveAllChildren", "Build", "ShowHideClose", "SwapSkin",
         "AttachAuditor", "DetachAuditor", "DeleteHost", "ProcessEvents", "Restart"]
WINDOW, SCENE, BOTH, IN_HOST = range(4)
HEADER = "#Inventor V2.1 ascii\n"


def seed(name, dialog, form, *actions):
    data = (HEADER + dialog + "\n").encode() + b"\0" + bytes([form])
    for kind, a, b, c in actions:
        data += bytes([KINDS.index(kind), a, b, c])
    pathlib.Path(__file__).resolve().parent.parent.joinpath("fuzz", "seeds-events", name).write_bytes(data)


# Field and value indices: multiLine is field 31 of an edit text, TRUE value 3,
# selectedPage field 33 of a tab dialog, "1" value 1.
seed("tab-page-moved-by-insert-then-remove",
     'TopLevelDialog { TabDialog { selectedPage 1 DialogLabel { label "One" } DialogLabel { label "Two" } } }',
     WINDOW, ("MoveChild", 1, 1, 0), ("WriteField", 1, 33, 0), ("ProcessEvents", 0, 0, 0), ("Build", WINDOW, 0, 0),
     ("MoveChild", 1, 0, 2), ("Build", SCENE, 0, 0), ("MoveChild", 1, 1, 0))
# The line entry is widget 3 of the window (window, frame, label, entry); it
# tells its auditors of every character only without trigOnEnter.
seed("auditor-switches-multiline-while-typing",
     'TopLevelDialog { DialogEditText { editText "abc" trigOnEnter FALSE } }',
     WINDOW, ("AttachAuditor", 0, 0, 0), ("WriteField", 1, 31, 3),
     ("QtKey", 3, 0, 0), ("ProcessEvents", 0, 0, 0), ("QtKey", 3, 0, 0), ("QtKey", 3, 5, 0),
     ("ProcessEvents", 0, 0, 0))
seed("host-widget-deleted",
     'TopLevelDialog { RowDialog { DialogLabel { label "a" } DialogEditText { } DialogIntegerSlider { } } '
     'TabDialog { DialogLabel { } DialogLabel { } } }',
     IN_HOST, ("DeleteHost", 0, 0, 0), ("WriteField", 2, 10, 14), ("WriteField", 4, 29, 14),
     ("WriteField", 6, 33, 1), ("Build", WINDOW, 0, 0), ("QtMouse", 5, 0, 0x88), ("DeleteHost", 0, 0, 0),
     ("Build", IN_HOST, 0, 0))
seed("scene-presses-and-keys",
     'TopLevelDialog { DialogEditText { } DialogCheckBox { label "c" } DialogIntegerSlider { } '
     'DialogComboBox { items ["x", "y"] } }',
     SCENE, ("AttachAuditor", 0, 1, 0), ("WriteField", 2, 10, 15), ("RemoveChild", 0, 1, 0),
     ("ScenePointer", 0, 40, 30), ("ScenePointer", 2, 60, 30), ("ScenePointer", 1, 60, 30),
     ("SceneKey", 0, 0, 0), ("SceneKey", 5, 0, 0), ("ScenePointer", 0, 50, 60), ("ScenePointer", 1, 50, 60),
     ("SwapSkin", 1, 0, 0), ("SwapSkin", 0, 0, 0), ("Build", BOTH, 0, 0), ("ScenePointer", 0, 50, 90),
     ("ScenePointer", 1, 50, 90))
seed("menus-both-forms-and-restart",
     'TopLevelDialog { MenuBar { MenuPopup { label "File" MenuPushButton { label "Open" } '
     'MenuCheckBox { label "c" } } } DialogPushButton { label "OK" } }',
     BOTH, ("AttachAuditor", 0, 2, 0), ("DetachAuditor", 0, 0, 0), ("Build", WINDOW, 0, 0),
     ("RemoveAllChildren", 0, 0, 0), ("QtMouse", 2, 0, 0x77), ("QtMouse", 2, 1, 0x77), ("ShowHideClose", 0, 0, 0),
     ("InsertChild", 1, 0, 14), ("ShowHideClose", 2, 0, 0), ("Restart", 0, 0, 0), ("QtMouse", 1, 0, 0x77),
     ("QtMouse", 1, 1, 0x77), ("ProcessEvents", 0, 0, 0), ("CloseWindow", 0, 0, 0))
# The entry hands its text to its auditors while the window is built; this
# auditor destroys the window's widgets there.
seed("auditor-destroys-window-while-it-is-built",
     'TopLevelDialog { DialogEditText { editText "a" trigOnEnter FALSE } }',
     SCENE, ("AttachAuditor", 0, 0, 0), ("ShowHideClose", 3, 0, 0), ("Build", WINDOW, 0, 0),
     ("ProcessEvents", 0, 0, 0), ("Build", WINDOW, 0, 0))
# The application deletes the window; the scene build that follows must pass
# nothing on to the radio buttons' widgets that went with it.
seed("window-deleted-then-radio-buttons-built-in-scene",
     'TopLevelDialog { DialogRadioButtons { items ["a", "b"] selectedItem 1 } }',
     WINDOW, ("DeleteHost", 0, 0, 0), ("Build", SCENE, 0, 0), ("WriteField", 1, 0, 0))
