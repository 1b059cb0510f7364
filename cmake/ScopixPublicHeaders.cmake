# SPDX-License-Identifier: MIT
# The SDK, header by header. What is not listed here is not installed.

set(SCOPIX_XSG_HEADERS
  # Plain values and their texts
  SbBox.h SbMatrix.h SbName.h SbPlane.h SbRay.h SbRotation.h SbSentence.h SbString.h SbTime.h SbVec.h SbValueText.h
  XsgExport.h
  # Run-time types
  SoType.h SoTyped.h SoTypedImpl.h SoTypedObject.h
  # Errors
  SoDebugError.h SoError.h SoErrorHandler.h SoErrorStack.h SoGLError.h SoMemoryError.h SoReadError.h
  # Performance counters
  SoPerfAccumCounter.h SoPerfCounter.h SoPerfCounterManager.h SoPerfFeed.h SoPerfStateCounter.h
  # Frames
  SoFrame.h SoFrameCsv.h SoFrameFile.h SoFrameLog.h SoFramePhase.h SoFrameRecording.h SoFrameStatistics.h
  # Preferences, memory, files that are replaced whole
  FileReplacement.h SoPreferences.h SpecialFile.h XsgMalloc.h
  # Fields and what holds them
  SoChangeListener.h SoField.h SoFieldContainer.h SoFieldData.h SoMField.h SoNotification.h SoSField.h
  SoWriteRecorder.h
  # The types of fields
  SoEnumTable.h SoMFBitMask.h SoMFBool.h SoMFBox3f.h SoMFColor.h SoMFDouble.h SoMFEnum.h SoMFFloat.h
  SoMFInt32.h SoMFMatrix.h SoMFName.h SoMFPlane.h SoMFRotation.h SoMFShort.h SoMFString.h SoMFTime.h
  SoMFUInt32.h SoMFUShort.h SoMFVec2d.h SoMFVec2f.h SoMFVec2i32.h SoMFVec2s.h SoMFVec3d.h SoMFVec3f.h
  SoMFVec3s.h SoMFVec4d.h SoMFVec4f.h SoMValue.h SoSFBitMask.h SoSFBool.h SoSFBox3f.h SoSFBox3s.h SoSFColor.h
  SoSFDouble.h SoSFEnum.h SoSFFilePathString.h SoSFFloat.h SoSFImage.h SoSFInt32.h SoSFMatrix.h SoSFName.h
  SoSFPlane.h SoSFRotation.h SoSFShort.h SoSFString.h SoSFTime.h SoSFUInt32.h SoSFUShort.h SoSFVec2d.h
  SoSFVec2f.h SoSFVec2i32.h SoSFVec2s.h SoSFVec3d.h SoSFVec3f.h SoSFVec3s.h SoSFVec4d.h SoSFVec4f.h SoSValue.h
  # Sensors
  SoAlarmSensor.h SoDataSensor.h SoFieldSensor.h SoIdleSensor.h SoNodeSensor.h SoSensor.h SoSensorQueue.h
  SoTimedSensor.h SoTimerSensor.h
  # Nodes
  SoNodeText.h SoGeometry.h SoInfo.h SoMFNode.h SoNode.h SoSFNode.h SoState.h SoTimeSource.h
  SoGroup.h SoGroupExtension.h SoInstances.h SoLevelOfDetail.h SoSeparator.h SoSwitch.h
  SoCone.h SoCube.h SoCylinder.h SoDrawingCallback.h SoIndexedLineSet.h SoIndexedPointSet.h
  SoIndexedTriangleSet.h SoIndexedTriangleStripSet.h SoLineSet.h SoPointSet.h SoScreenText.h SoShape.h
  SoSolid.h SoSphere.h SoTriangleSet.h SoTriangleStripSet.h SoVertexShape.h
  SoAmbientLight.h SoDirectionalLight.h SoEnvironmentLight.h SoLight.h SoPointLight.h SoSpotLight.h
  SoCamera.h SoOrthographicCamera.h SoPerspectiveCamera.h
  SoMatrixTransform.h SoSpin.h SoTransform.h SoTransformation.h
  SoClipPlane.h SoComplexity.h SoDrawStyle.h SoFog.h SoMaterial.h SoMaterialTexture.h SoNormals.h
  SoPhysicalMaterial.h SoPoints.h SoSecondTextureCoordinates.h SoTexture2.h
  SoTextureCoordinates.h SoTextureTransform.h
  DerivedPoints.h SoAnimatedValues.h SoAnimation.h SoMorph.h SoSkin.h SoTrack.h
  # Actions
  SoAreaPickAction.h SoBoundingBoxAction.h SoHiding.h SoMeasureAction.h SoPartTraversal.h SoPath.h SoPathTraversal.h SoRayPickAction.h SoSearchAction.h SoTraversal.h
  # Queries
  SoQuery.h SoQuerySearch.h
  # Names of places
  SoScenePath.h
  # Drawing
  SoImageReader.h SoOffscreenRenderer.h SoOverlay.h SoRenderer.h SoShapeColors.h
  # What branches cost
  SoCostMeter.h SoCostPictures.h SoCosts.h SoWhatIfMeter.h
  # Scene files
  SoSceneFile.h
  # The library as a whole
  SoDB.h)

set(SCOPIX_LIVE_HEADERS
  Adapter.h Client.h LiveExport.h LivePacking.h LiveSentence.h LiveValue.h Server.h)

set(SCOPIX_LIVE_XSG_HEADERS
  XsgAdapter.h XsgServer.h)

set(SCOPIX_EXTENDER_HEADERS
  SpxCommand.h SpxContextMenus.h SpxEditedConnections.h SpxEditedFields.h SpxEditor.h SpxExport.h SpxExtension.h
  SpxGuide.h SpxNavigator.h SpxNodeDefaults.h SpxOutput.h SpxPlugin.h SpxPluginNote.h SpxPluginsManager.h
  SpxPreviewServices.h SpxProfile.h SpxSceneDisplay.h SpxSceneServices.h SpxSentence.h SpxServices.h SpxSettings.h
  SpxShell.h SpxShellMenus.h SpxTreeColumns.h SpxVersion.h SpxViewLook.h SpxViewServices.h)

set(SCOPIX_HOST_HEADERS
  CommandLine.h Commands.h HostApplication.h HostExport.h)

set(SCOPIX_EDITING_HEADERS
  SpxConnectCommand.h SpxEditingExport.h SpxExpression.h SpxFieldDescription.h SpxFieldEdit.h SpxFieldGesture.h
  SpxFieldPointer.h SpxFieldState.h SpxFlowLayout.h SpxFreshDefault.h
  SpxObjectEditor.h SpxSetFieldCommand.h SpxSetIgnoredCommand.h SpxText.h SpxWatcher.h)
