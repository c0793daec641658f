// The built-in look of every skinned class: the text that stands in for the
// class's skin file when no skin directory holds one. The files of
// skins/default hold the same nodes.

#include <SoDialogCheckBox.h>
#include <SoDialogComboBox.h>
#include <SoDialogComponent.h>
#include <SoDialogEditText.h>
#include <SoDialogPushButton.h>
#include <SoDialogRadioButtons.h>
#include <SoDialogSeparator.h>
#include <SoDialogSlider.h>
#include <SoMenuBar.h>
#include <SoMenuCheckBox.h>
#include <SoMenuItem.h>
#include <SoMenuPopup.h>
#include <SoMenuPushButton.h>
#include <SoMenuRadioButtons.h>
#include <SoMenuSeparator.h>
#include <SoTabDialog.h>
#include <SoTopLevelDialog.h>

#include "SoFormwrightSubNodeSource.h"

char* SoFormwright::Formwright = const_cast<char*>(
  "DEF DialogTextProperties SoGroup { BaseColor { rgb 0 0 0 }  Translation { translation 0 0 0.1 }  Font { size 11 name \"Tahoma\"} }");

SO_FORMWRIGHT_SKIN_SOURCE(SoDialogComponent, DialogComponent,
  "DEF DialogComponentEdgeStyleNone Group { Material { diffuseColor 0.75 0.75 0.75 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogComponentEdgeStyleShadowIn Group { Material { diffuseColor 0.5 0.5 0.5 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogComponentEdgeStyleShadowOut Group { Material { diffuseColor 0.8 0.8 0.8 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }",
  "DialogComponentEdgeStyleNone", "DialogComponentEdgeStyleShadowIn", "DialogComponentEdgeStyleShadowOut")

SO_FORMWRIGHT_SKIN_SOURCE(SoDialogCheckBox, DialogCheckBox,
  "DEF DialogCheckBoxFrame Group { Material { diffuseColor 0.7 0.7 0.7 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogCheckBoxStateOff Group { Material { diffuseColor 1 1 1 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 } }"
  "  DEF DialogCheckBoxStateOn Group { Material { diffuseColor 0 0 0 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 } }",
  "DialogCheckBoxFrame", "DialogCheckBoxStateOff", "DialogCheckBoxStateOn")

SO_FORMWRIGHT_SKIN_SOURCE(SoDialogComboBox, DialogComboBox,
  "DEF DialogComboBoxFrame Group { Material { diffuseColor 0.7 0.7 0.7 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogComboBoxItemFrame Group { Material { diffuseColor 0.8 0.8 0.8 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogComboBoxButtonReleased Group { Translation { translation 0 0 0.1 }  SoScale { scaleFactor 0.07142857 0.07142857 1.0 }  Material { diffuseColor 0.7 0.7 0.7 }  SoCoordinate3 { point [ -7 -6 0, -6 -6 0, -6 7 0, -7 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -6 6 0, 6 6 0, 6 7 0, -6 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.2 0.2 0.2 }  SoCoordinate3 { point [ -7 -7 0, 7 -7 0, 7 -6 0, -7 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 7 -6 0, 7 7 0, 6 7 0, 6 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 1 1 1 }  SoCoordinate3 { point [ -6 -5 0, -5 -5 0, -5 6 0, -6 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -5 5 0, 5 5 0, 5 6 0, -5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.5 0.5 0.5 }  SoCoordinate3 { point [ -6 -6 0, 6 -6 0, 6 -5 0, -6 -5 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 5 -5 0, 6 -5 0, 6 6 0, 5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.7 0.7 0.7 }  SoCoordinate3 { point [ -5 -5 0, 5 -5 0, 5 5 0, -5 5 0 ] }  SoFaceSet { numVertices [ 4 ] } }"
  "  DEF DialogComboBoxButtonPressed Group { Translation { translation 0 0 0.1 }  SoScale { scaleFactor 0.07142857 0.07142857 1.0 }  Material { diffuseColor 0.5 0.5 0.5 }  SoCoordinate3 { point [ -7 -6 0, -6 -6 0, -6 7 0, -7 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -6 6 0, 6 6 0, 6 7 0, -6 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 1 1 1 }  SoCoordinate3 { point [ -7 -7 0, 7 -7 0, 7 -6 0, -7 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 7 -6 0, 7 7 0, 6 7 0, 6 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.2 0.2 0.2 }  SoCoordinate3 { point [ -6 -5 0, -5 -5 0, -5 6 0, -6 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -5 5 0, 5 5 0, 5 6 0, -5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.7 0.7 0.7 }  SoCoordinate3 { point [ -6 -6 0, 6 -6 0, 6 -5 0, -6 -5 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 5 -5 0, 6 -5 0, 6 6 0, 5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0 0 0 }  SoCoordinate3 { point [ -5 -5 0, 5 -5 0, 5 5 0, -5 5 0 ] }  SoFaceSet { numVertices [ 4 ] } }",
  "DialogComboBoxFrame", "DialogComboBoxItemFrame", "DialogComboBoxButtonReleased", "DialogComboBoxButtonPressed")

SO_FORMWRIGHT_SKIN_SOURCE(SoDialogRadioButtons, DialogRadioButtons,
  "DEF DialogRadioButtonsFrame Group { Material { diffuseColor 0.8 0.8 0.8 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogRadioButtonsItemFrame Group { Material { diffuseColor 0.7 0.7 0.7 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogRadioButtonsStateOff Group { Material { diffuseColor 1 1 1 }  Sphere { radius 0.5} }"
  "  DEF DialogRadioButtonsStateOn Group { Material { diffuseColor 1 1 1 }  Sphere { radius 0.5 }  Translation { translation 0 0 0.4 }  BaseColor { rgb  0 0 0 }  Sphere { radius 0.2 } }",
  "DialogRadioButtonsFrame", "DialogRadioButtonsItemFrame", "DialogRadioButtonsStateOff", "DialogRadioButtonsStateOn")

SO_FORMWRIGHT_SKIN_SOURCE(SoDialogEditText, DialogEditText,
  "DEF DialogEditTextFrame Group { Material { diffuseColor 1 1 1 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogEditTextEditingFrame Group { Material { diffuseColor 1 0.6 0.6 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogEditTextDownButtonPressed Group { Material { diffuseColor 0.7 0.8 0.7 }  Translation { translation 0 0 0.25 }  Cube { width 1 height 1 depth 0.5 }  Translation { translation 0 0 0.25 } }"
  "  DEF DialogEditTextDownButtonReleased Group { Material { diffuseColor 1 0.6 0.6 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogEditTextUpButtonPressed Group { Material { diffuseColor 0.7 0.8 0.7 }  Translation { translation 0 0 0.25 }  Cube { width 1 height 1 depth 0.5 }  Translation { translation 0 0 0.25 } }"
  "  DEF DialogEditTextUpButtonReleased Group { Material { diffuseColor 1 0.6 0.6 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogEditTextScrollFrame Group { Material { diffuseColor 0.7 0.7 0.7 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogEditTextCursorFrame Group { Material { diffuseColor 0.7 0.9 0.7 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF DialogEditTextCaretFrame Group { Material { diffuseColor 1 0 0 }  Translation { translation 0 0 0.25 }  Cube { width 1 height 1 depth 0.5 }  Translation { translation 0 0 0.25 } }",
  "DialogEditTextFrame", "DialogEditTextEditingFrame", "DialogEditTextDownButtonPressed", "DialogEditTextDownButtonReleased", "DialogEditTextUpButtonPressed", "DialogEditTextUpButtonReleased", "DialogEditTextScrollFrame", "DialogEditTextCursorFrame", "DialogEditTextCaretFrame")

SO_FORMWRIGHT_SKIN_SOURCE(SoDialogPushButton, DialogPushButton,
  "DEF DialogPushButtonReleased Group { Material { diffuseColor 0.7 0.7 0.7 }  Translation { translation 0 0 1 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 1 } }"
  "  DEF DialogPushButtonPressed Group { Material { diffuseColor 1 0.6 0.6 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }",
  "DialogPushButtonReleased", "DialogPushButtonPressed")

SO_FORMWRIGHT_SKIN_SOURCE(SoDialogSeparator, DialogSeparator,
  "DEF DialogSeparatorVertical Group { Material { diffuseColor 0 1 0 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 } }"
  "  DEF DialogSeparatorHorizontal Group { Material { diffuseColor 0.5 0.5 0.5 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 } }",
  "DialogSeparatorVertical", "DialogSeparatorHorizontal")

SO_FORMWRIGHT_SKIN_SOURCE(SoDialogSlider, DialogSlider,
  "DEF DialogSliderFrame Group { Material { diffuseColor 0.6 0.6 0.6 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 } }"
  "  DEF DialogSliderCursor Group { Material { diffuseColor 0.6 1 0.6}  Translation { translation 0 0 0.5}  Scale { scaleFactor 1 1 1}  Cone { bottomRadius 0.5 height 1} }",
  "DialogSliderFrame", "DialogSliderCursor")

SO_FORMWRIGHT_SKIN_SOURCE(SoTabDialog, TabDialog,
  "DEF TabDialogSelectedTabFrame Group { Material { diffuseColor 0.6 0.6 0.6 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF TabDialogUnselectedTabFrame Group { Material { diffuseColor 0.7 0.7 0.7 }  Translation { translation 0 -0.2 0.4}  Cube { width 1 height 1 depth 0.8}  Translation { translation 0 0 0.4 } }"
  "  DEF _TabDialogButtonPressed_ Group { Translation { translation 0 0 0.1 }  SoScale { scaleFactor 0.07142857 0.07142857 1.0 }  Material { diffuseColor 0.5 0.5 0.5 }  SoCoordinate3 { point [ -7 -6 0, -6 -6 0, -6 7 0, -7 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -6 6 0, 6 6 0, 6 7 0, -6 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 1 1 1 }  SoCoordinate3 { point [ -7 -7 0, 7 -7 0, 7 -6 0, -7 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 7 -6 0, 7 7 0, 6 7 0, 6 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.2 0.2 0.2 }  SoCoordinate3 { point [ -6 -5 0, -5 -5 0, -5 6 0, -6 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -5 5 0, 5 5 0, 5 6 0, -5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.7 0.7 0.7 }  SoCoordinate3 { point [ -6 -6 0, 6 -6 0, 6 -5 0, -6 -5 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 5 -5 0, 6 -5 0, 6 6 0, 5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.7 0.7 0.7 }  SoCoordinate3 { point [ -5 -5 0, 5 -5 0, 5 5 0, -5 5 0 ] }  SoFaceSet { numVertices [ 4 ] } }"
  "  DEF _TabDialogButtonReleased_ Group { Translation { translation 0 0 0.1 }  SoScale { scaleFactor 0.07142857 0.07142857 1.0 }  Material { diffuseColor 0.7 0.7 0.7 }  SoCoordinate3 { point [ -7 -6 0, -6 -6 0, -6 7 0, -7 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -6 6 0, 6 6 0, 6 7 0, -6 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.2 0.2 0.2 }  SoCoordinate3 { point [ -7 -7 0, 7 -7 0, 7 -6 0, -7 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 7 -6 0, 7 7 0, 6 7 0, 6 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 1 1 1 }  SoCoordinate3 { point [ -6 -5 0, -5 -5 0, -5 6 0, -6 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -5 5 0, 5 5 0, 5 6 0, -5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.5 0.5 0.5 }  SoCoordinate3 { point [ -6 -6 0, 6 -6 0, 6 -5 0, -6 -5 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 5 -5 0, 6 -5 0, 6 6 0, 5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.7 0.7 0.7 }  SoCoordinate3 { point [ -5 -5 0, 5 -5 0, 5 5 0, -5 5 0 ] }  SoFaceSet { numVertices [ 4 ] } }"
  "  DEF TabDialogLeftButtonPressed Group {  USE _TabDialogButtonPressed_ }"
  "  DEF TabDialogLeftButtonReleased Group {  USE _TabDialogButtonReleased_ }"
  "  DEF TabDialogRightButtonPressed Group {  USE _TabDialogButtonPressed_ }"
  "  DEF TabDialogRightButtonReleased Group {  USE _TabDialogButtonReleased_ }"
  "  DEF TabDialogFrame Group { Material { diffuseColor 0.7 0.7 0.7 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }",
  "TabDialogSelectedTabFrame", "TabDialogUnselectedTabFrame", "TabDialogLeftButtonPressed", "TabDialogLeftButtonReleased", "TabDialogRightButtonPressed", "TabDialogRightButtonReleased", "TabDialogFrame")

SO_FORMWRIGHT_SKIN_SOURCE(SoTopLevelDialog, TopLevelDialog,
  "DEF TopLevelDialogFrame Group { Material { diffuseColor 0.7 0.7 1 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF TopLevelDialogMinReleased Group { Translation { translation 0 0 0.1 }  SoScale { scaleFactor 0.07142857 0.07142857 1.0 }  Material { diffuseColor 0.7 0.7 1 }  SoCoordinate3 { point [ -7 -6 0, -6 -6 0, -6 7 0, -7 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -6 6 0, 6 6 0, 6 7 0, -6 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.2 0.2 1 }  SoCoordinate3 { point [ -7 -7 0, 7 -7 0, 7 -6 0, -7 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 7 -6 0, 7 7 0, 6 7 0, 6 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 1 1 1 }  SoCoordinate3 { point [ -6 -5 0, -5 -5 0, -5 6 0, -6 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -5 5 0, 5 5 0, 5 6 0, -5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.5 0.5 1 }  SoCoordinate3 { point [ -6 -6 0, 6 -6 0, 6 -5 0, -6 -5 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 5 -5 0, 6 -5 0, 6 6 0, 5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.7 0.7 1 }  SoCoordinate3 { point [ -5 -5 0, 5 -5 0, 5 5 0, -5 5 0 ] }  SoFaceSet { numVertices [ 4 ] } }"
  "  DEF TopLevelDialogMinPressed Group { Translation { translation 0 0 0.1 }  SoScale { scaleFactor 0.07142857 0.07142857 1.0 }  Material { diffuseColor 0.5 0.5 1 }  SoCoordinate3 { point [ -7 -6 0, -6 -6 0, -6 7 0, -7 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -6 6 0, 6 6 0, 6 7 0, -6 7 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 1 1 1 }  SoCoordinate3 { point [ -7 -7 0, 7 -7 0, 7 -6 0, -7 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 7 -6 0, 7 7 0, 6 7 0, 6 -6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.2 0.2 1 }  SoCoordinate3 { point [ -6 -5 0, -5 -5 0, -5 6 0, -6 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ -5 5 0, 5 5 0, 5 6 0, -5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.7 0.7 1 }  SoCoordinate3 { point [ -6 -6 0, 6 -6 0, 6 -5 0, -6 -5 0 ] }  SoFaceSet { numVertices [ 4 ] }  SoCoordinate3 { point [ 5 -5 0, 6 -5 0, 6 6 0, 5 6 0 ] }  SoFaceSet { numVertices [ 4 ] }  Material { diffuseColor 0.7 0.7 1 }  SoCoordinate3 { point [ -5 -5 0, 5 -5 0, 5 5 0, -5 5 0 ] }  SoFaceSet { numVertices [ 4 ] } }",
  "TopLevelDialogFrame", "TopLevelDialogMinReleased", "TopLevelDialogMinPressed")

SO_FORMWRIGHT_SKIN_SOURCE(SoMenuBar, MenuBar,
  "DEF MenuBarFrame Group { BaseColor { rgb [0.6 0.6 0.6] }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }",
  "MenuBarFrame")

SO_FORMWRIGHT_SKIN_SOURCE(SoMenuItem, MenuItem,
  "DEF MenuItemFrame Group { BaseColor { rgb [0.7 0.8 0.7] }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }",
  "MenuItemFrame")

SO_FORMWRIGHT_SKIN_SOURCE(SoMenuCheckBox, MenuCheckBox,
  "DEF MenuCheckBoxStateOn Group { Material { diffuseColor 0 0 0 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 } }"
  "  DEF MenuCheckBoxStateOff Group { Material { diffuseColor 1 1 1 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 } }",
  "MenuCheckBoxStateOn", "MenuCheckBoxStateOff")

SO_FORMWRIGHT_SKIN_SOURCE(SoMenuPopup, MenuPopup,
  "DEF MenuPopupPressedFrame Group { Material { diffuseColor 1 0.6 0.6 }  Translation { translation 0 0 0.25 }  Cube { width 1 height 1 depth 0.5 }  Translation { translation 0 0 0.25 } }"
  "  DEF MenuPopupReleasedFrame Group { Material { diffuseColor 0.7 0.7 0.7 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF MenuPopupReleasedShape Group { BaseColor { rgb [0.6 0.6 0.6 ] }  Separator { Separator { ShapeHints {faceType UNKNOWN_FACE_TYPE }  MatrixTransform { matrix 0.2 0 0 0 0 0.2 0 0 0 0 1.0 0 -0.5 -0.5 0 1.0 }  IndexedFaceSet { vertexProperty VertexProperty { vertex [ 0 0 0 ,5 2.5 0 ,0 5 0 ,0 0 1 ,5 2.5 1 ,0 5 1 ] normal [ ] texCoord [ ] }  coordIndex [ 2, 1, 0, -1, 3, 4, 5, -1, 0, 1, 4, 3, -1, 2, 0, 3, 5, -1, 1, 2, 5, 4, -1]  textureCoordIndex [ ] } } } }"
  "  DEF MenuPopupPressedShape Group { BaseColor { rgb [1 0.6 0.6 ] }  Translation { translation 0 0 -0.2}  Separator { Separator { ShapeHints {faceType UNKNOWN_FACE_TYPE }  MatrixTransform { matrix 0.2 0 0 0 0 0.2 0 0 0 0 1.0 0 -0.5 -0.5 0 1.0 }  IndexedFaceSet { vertexProperty VertexProperty { vertex [ 0 0 0 ,5 2.5 0 ,0 5 0 ,0 0 1 ,5 2.5 1 ,0 5 1 ] normal [ ] texCoord [ ] }  coordIndex [ 2, 1, 0, -1, 3, 4, 5, -1, 0, 1, 4, 3, -1, 2, 0, 3, 5, -1, 1, 2, 5, 4, -1]  textureCoordIndex [ ] } } } }",
  "MenuPopupPressedFrame", "MenuPopupReleasedFrame", "MenuPopupReleasedShape", "MenuPopupPressedShape")

SO_FORMWRIGHT_SKIN_SOURCE(SoMenuPushButton, MenuPushButton,
  "DEF MenuPushButtonReleased Group { Material { diffuseColor 0.8 0.8 0.8 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }  Translation { translation 0 0 0.5 } }"
  "  DEF MenuPushButtonPressed Group { Material { diffuseColor 1 0.6 0.6 }  Translation { translation 0 0 0.25 }  Cube { width 1 height 1 depth 0.5 }  Translation { translation 0 0 0.25 } }",
  "MenuPushButtonReleased", "MenuPushButtonPressed")

SO_FORMWRIGHT_SKIN_SOURCE(SoMenuRadioButtons, MenuRadioButtons,
  "DEF MenuRadioButtonsStateOn Group { Material { diffuseColor 1 1 1 }  Sphere { radius 0.5}  Translation { translation 0 0 0.5}  BaseColor { rgb  0 0 0 }  Sphere { radius 0.2} }"
  "  DEF MenuRadioButtonsStateOff Group { Material { diffuseColor 1 1 1 }  Translation { translation 0 0 0.5}  Sphere { radius 0.5} }",
  "MenuRadioButtonsStateOn", "MenuRadioButtonsStateOff")

SO_FORMWRIGHT_SKIN_SOURCE(SoMenuSeparator, MenuSeparator,
  "DEF MenuSeparatorFrame Group { Material { diffuseColor 0.6 0.6 0.6 }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 } }",
  "MenuSeparatorFrame")

void SoFormwright::change3DSkin()
{
  change3DSkinParts("TextProperties.scn", Formwright, {"DialogTextProperties"});
  setSkinLoaded(1);
  SoMenuItem::change3DSkin();
  SoMenuCheckBox::change3DSkin();
  SoMenuPopup::change3DSkin();
  SoMenuPushButton::change3DSkin();
  SoMenuRadioButtons::change3DSkin();
  SoMenuSeparator::change3DSkin();
  SoDialogComponent::change3DSkin();
  SoDialogCheckBox::change3DSkin();
  SoDialogComboBox::change3DSkin();
  SoDialogRadioButtons::change3DSkin();
  SoDialogEditText::change3DSkin();
  SoTabDialog::change3DSkin();
  SoDialogPushButton::change3DSkin();
  SoDialogSeparator::change3DSkin();
  SoDialogSlider::change3DSkin();
  SoMenuBar::change3DSkin();
  SoTopLevelDialog::change3DSkin();
}
