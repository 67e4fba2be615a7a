'This macro code can be called from Microsoft Access application.        
'This way you can use to integrate velorin with your program's process: 
'  1. Set a reference to velorin.mde (velorin.dll).                  
'  2. Create New or Open existing module in your application.              
'  3. Past this code into the module                                       
                                                                           
Sub Exec_Fullrun2024()                                                       
    Dim vlkProcesses As velorin.Processes
    Dim vlkDatabase As velorin.Database
    Dim vlkProcess As velorin.Process
    Dim vlkDataSource1 As velorin.Datasource
    Dim vlkDataSource2 As velorin.Datasource
    Dim vlkDataSource3 As velorin.Datasource
    Dim vlkDataSource4 As velorin.Datasource
    Dim vlkMailMerge1 As velorin.MailMerge
    Dim vlkMailMerge2 As velorin.MailMerge
    Dim vlkSaveAs1 As velorin.SaveAs
    Dim vlkSaveAs2 As velorin.SaveAs
    Dim vlkPrintOut1 As velorin.PrintOut
    Dim vlkPrintOut2 As velorin.PrintOut
    Dim vlkConvert1 As velorin.Convert
    Dim vlkSendMail1 As velorin.SendMail
    Dim vlkTo1 As velorin.List
    Dim vlkCC1 As velorin.List
    Dim vlkBCC1 As velorin.List
    Dim vlkSendMail2 As velorin.SendMail
    Dim vlkTo2 As velorin.List
    Dim vlkCC2 As velorin.List
    Dim vlkBCC2 As velorin.List
    Dim vlkSendFax1 As velorin.SendFax
    Dim vlkAddRecord1 As velorin.AddRecord
    Dim vlkFieldValue1 As velorin.FieldValue
    Dim vlkFieldValue2 As velorin.FieldValue
    Dim vlkFieldValue3 As velorin.FieldValue
    Dim vlkDocument1 As velorin.Document
    Dim vlkDocument2 As velorin.Document
    Dim vlkDocument3 As velorin.Document
    Dim vlkDocument4 As velorin.Document
    Screen.MousePointer = 11
    Set vlkProcesses = New velorin.Processes
    Set vlkDatabase = New velorin.Database
    vlkDatabase.Name = "Shop"
    vlkDatabase.Type_ = "Microsoft Access"
    vlkDatabase.Location = "C:\data\shop.mdb"
    vlkProcesses.Databases.Add vlkDatabase
    Set vlkDatabase = New velorin.Database
    vlkDatabase.Name = "Archive"
    vlkDatabase.Location = "C:\data\archive.mdb"
    vlkProcesses.Databases.Add vlkDatabase
    Set vlkProcess = New velorin.Process
    vlkProcesses.Add vlkProcess
    Set vlkDataSource1 = New velorin.Datasource
    Set vlkDataSource2 = New velorin.Datasource
    Set vlkDataSource3 = New velorin.Datasource
    Set vlkDataSource4 = New velorin.Datasource
    Set vlkMailMerge1 = New velorin.MailMerge
    Set vlkMailMerge2 = New velorin.MailMerge
    Set vlkSaveAs1 = New velorin.SaveAs
    Set vlkSaveAs2 = New velorin.SaveAs
    Set vlkPrintOut1 = New velorin.PrintOut
    Set vlkPrintOut2 = New velorin.PrintOut
    Set vlkConvert1 = New velorin.Convert
    Set vlkSendMail1 = New velorin.SendMail
    Set vlkSendMail2 = New velorin.SendMail
    Set vlkSendFax1 = New velorin.SendFax
    Set vlkAddRecord1 = New velorin.AddRecord
    Set vlkFieldValue1 = New velorin.FieldValue
    Set vlkFieldValue2 = New velorin.FieldValue
    Set vlkFieldValue3 = New velorin.FieldValue
    Set vlkDocument1 = New velorin.Document
    Set vlkDocument2 = New velorin.Document
    Set vlkDocument3 = New velorin.Document
    Set vlkDocument4 = New velorin.Document
    With vlkProcess
        .Name = "Full run 2024!"
        .ProcessRecords = 2  '0 - Process Current Record; 1 - Process All Records; 2 - Process Selected Records
        .MainDataSourceName = "Customers"
        .AbortOnError = False
        .OnErrorNotifyUser = False
        Dim vlkProcessFieldValue As FieldValue
        Set vlkProcessFieldValue = New FieldValue
        With vlkProcessFieldValue
            .Field = "Signature"
            .Value = "Sales"
        End With
        .FieldValues.Add vlkProcessFieldValue, vlkProcessFieldValue.Field
        Set vlkProcessFieldValue = New FieldValue
        With vlkProcessFieldValue
            .Field = "Year"
            .Value = 2024
        End With
        .FieldValues.Add vlkProcessFieldValue, vlkProcessFieldValue.Field
        .LogDataSourceName = "Log table"
    End With
    With vlkDatasource1
        .Name = "Customers"
        .Database = "Shop"
        .Type_ = "Table"
        .ObjectName = "tblCustomers"
    End With
    vlkProcess.Datasources.Add vlkDatasource1
    With vlkDatasource2
        .Name = "Contacts"
        Set .Application = Application
        .Type_ = "Form"
        .ObjectName = "frmContacts"
        .SubFormFullName = "frmContacts.sfrPeople"
    End With
    vlkProcess.Datasources.Add vlkDatasource2
    With vlkDatasource3
        .Name = "Log table"
        .Database = "Archive"
        .Type_ = "Table"
        .ObjectName = "tblLog"
    End With
    vlkProcess.Datasources.Add vlkDatasource3
    With vlkDatasource4
        .Name = "Remote"
        .Database = "Server"
        .Type_ = "Query"
        .ObjectName = "qryRemote"
    End With
    vlkProcess.Datasources.Add vlkDatasource4
    vlkDocument1.Name = "Letter"
    vlkProcess.Documents.Add vlkDocument1, vlkDocument1.Name
    vlkDocument2.Name = "Sheet"
    vlkProcess.Documents.Add vlkDocument2, vlkDocument2.Name
    vlkDocument3.Name = "Letter PDF"
    vlkProcess.Documents.Add vlkDocument3, vlkDocument3.Name
    vlkDocument4.Name = "Sent letter"
    vlkProcess.Documents.Add vlkDocument4, vlkDocument4.Name
    With vlkMailMerge1
        .Description = "Letters"
        .InvokedApplication = "Microsoft Word"
        .Template = "C:\tpl\letter.dot"
        .DatasourceName = "Customers"
        .Iteration = "[CustomerID]"
        .OutputDocumentName = "Letter"
        .ShowDocument = True
        .MailMergeType = 2 '0 - Document; 1 - Listing; 2 - Labels
        .InsertPagebreak = False
        .PrecededBy = "Cover"
        .SucceededBy = "Back"
    End With
    vlkProcess.Activities.Add vlkMailMerge1
    With vlkMailMerge2
        .InvokedApplication = "Microsoft Excel"
        .Template = "C:\tpl\sheet.xlt"
        .OutputDocumentName = "Sheet"
        .ShowDocument = True
    End With
    vlkProcess.Activities.Add vlkMailMerge2
    With vlkSaveAs1
        .Description = "Keep letter"
        .InputDocumentName = "Letter"
        .Folder = "C:\out"
        .File = "[CustomerID].doc"
        .OverwriteExistingFile = 2 '0 - Ask For Confirmation; 1 - Overwrite Without Confirmation; 2 - No Overwrite
        .FileFormat = 0
        .LockComments = False
        .Password = "pw"
        .AddToRecentFiles = False
        .WritePassword = "wpw"
        .ReadOnlyRecommended = True
        .EmbedTrueTypeFonts = False
        .SaveNativePictureFormat = False
        .SaveFormsData = False
        .SaveAsAOCELetter = False
        .Encoding = 1252
        .InsertLineBreaks = False
        .AllowSubstitutions = False
        .LineEnding = 0
        .AddBiDiMarks = False
    End With
    vlkProcess.Activities.Add vlkSaveAs1
    With vlkSaveAs2
        .InputDocumentName = "Sheet"
        .Folder = "C:\out"
        .File = "sheet.xls"
        .OverwriteExistingFile = 0 '0 - Ask For Confirmation; 1 - Overwrite Without Confirmation; 2 - No Overwrite
        .FileFormat = -4143
        .Password = "xpw"
        .WritePassword = "xwpw"
        .ReadOnlyRecommended = False
        .CreateBackup = True
        .AccessMode = 1
        .ConflictResolution = 2
        .AddToMru = False
        .TextCodepage = "1252"
        .TextVisualLayout = 1
        .Local_ = True
    End With
    vlkProcess.Activities.Add vlkSaveAs2
    With vlkPrintOut1
        .Description = "Print letter"
        .InputDocumentName = "Letter"
        .PrintToFile = True
        .OutputFileName = "C:\out\letter.prn"
        .From = 1
        .To_ = 3
        .Copies = 2
        .Collate = True
        .Printer = "Office laser"
        .Background = False
        .Append = False
        .Range = 3
        .Item = 0
        .Pages = "1-3"
        .PageType = 0
        .ManualDuplexPrint = False
        .PrintZoomColumn = 1
        .PrintZoomRow = 1
        .PrintZoomPaperWidth = 11906
        .PrintZoomPaperHeight = 16838
        .FileName = "C:\out\letter.doc"
    End With
    vlkProcess.Activities.Add vlkPrintOut1
    With vlkPrintOut2
        .InputDocumentName = "Sheet"
        .Copies = 1
        .Preview = False
        .IgnorePrintAreas = True
    End With
    vlkProcess.Activities.Add vlkPrintOut2
    With vlkConvert1
        .Description = "To PDF"
        .InputDocumentName = "Letter"
        .OutputDocumentName = "Letter PDF"
        .Folder = "C:\pdf"
        .File = "[CustomerID].pdf"
        .ShowDocument = True
        .PDFConvertingMethod = 2
        .PostscriptPrinter  = "PDF writer"
        .Postscript2PDFConverter = 2
        .GhostscriptExecutableFile  = "C:\gs\bin\gswin32c.exe"
    End With
    vlkProcess.Activities.Add vlkConvert1
    With vlkSendMail1
        .Description = "Mail it"
        .InputDocumentName = "Letter"
        .OutputDocumentName = "Sent letter"
        .DatasourceName = "Contacts"
        Set vlkTo1 = New velorin.List
        vlkTo1.ValueList = "[Email]"
        Set .To_ = vlkTo1
        Set vlkCC1 = New velorin.List
        vlkCC1.ValueList = "boss@example.com"
        Set .CC = vlkCC1
        Set vlkBCC1 = New velorin.List
        vlkBCC1.ValueList = "archive@example.com"
        Set .BCC = vlkBCC1
        .Subject = "Your ""order"" [OrderID]"
        .Body = "Dear ""customer"""
        .SendMethod = 2 '0 - Send; 1 - Display; 2 - Save
        .MailApplication = 2 '0 - Default Mail Application; 1 - Outlook; 2 - CDO; 3 - Groupwise
        .SMTPServer = "smtp.example.com"
        .SMTPServerPort = "587"
        .SendUsername = "user"
        .SendPassword = "secret"
        .From = "shop@example.com"
        .Charset = "utf-8"
        .AddAttachment "[Document:Letter PDF]"
        .AddAttachment "C:\terms.pdf"
    End With
    vlkProcess.Activities.Add vlkSendMail1
    With vlkSendMail2
        .InputDocumentName = "Letter"
        Set vlkTo2 = New velorin.List
        vlkTo2.ValueList = "[Email]"
        Set .To_ = vlkTo2
        .Subject = "Copy"
        .MailApplication = 3 '0 - Default Mail Application; 1 - Outlook; 2 - CDO; 3 - Groupwise
        .SendUsername = "gw"
        .SendPassword = "gwpw"
    End With
    vlkProcess.Activities.Add vlkSendMail2
    With vlkSendFax1
        .Description = "Fax it"
        .InputDocumentName = "Letter"
        .Address = "[Fax]"
        .Subject = "Your letter"
    End With
    vlkProcess.Activities.Add vlkSendFax1
    With vlkAddRecord1
        .Description = "Log"
        .Database = "Archive"
        .TableName = "Log"
        With .FieldValues
            vlkFieldValue3.Field = "Sent"
            vlkFieldValue3.Value = 1
            vlkFieldValue4.Field = "Channel"
            vlkFieldValue4.Value = "mail"
            vlkFieldValue5.Field = "Note"
            vlkFieldValue5.Value = "done"
        End With
        .DatasourceName = "Log table"
    End With
    vlkProcess.Activities.Add vlkAddRecord1
    vlkProcess.Execute
    vlkProcess.Dispose
    Set vlkProcesses = Nothing
    Set vlkDatabase = Nothing
    Set vlkDataSource1 = Nothing
    Set vlkDataSource2 = Nothing
    Set vlkDataSource3 = Nothing
    Set vlkDataSource4 = Nothing
    Set vlkMailMerge1 = Nothing
    Set vlkMailMerge2 = Nothing
    Set vlkSaveAs1 = Nothing
    Set vlkSaveAs2 = Nothing
    Set vlkPrintOut1 = Nothing
    Set vlkPrintOut2 = Nothing
    Set vlkConvert1 = Nothing
    Set vlkSendMail1 = Nothing
    Set vlkTo1 = Nothing
    Set vlkCC1 = Nothing
    Set vlkBCC1 = Nothing
    Set vlkSendMail2 = Nothing
    Set vlkTo2 = Nothing
    Set vlkCC2 = Nothing
    Set vlkBCC2 = Nothing
    Set vlkSendFax1 = Nothing
    Set vlkAddRecord1 = Nothing
    Set vlkFieldValue1 = Nothing
    Set vlkFieldValue2 = Nothing
    Set vlkFieldValue3 = Nothing
    Set vlkDocument1 = Nothing
    Set vlkDocument2 = Nothing
    Set vlkDocument3 = Nothing
    Set vlkDocument4 = Nothing
    Set vlkProcess = Nothing
    Screen.MousePointer = 0
                                                                
End Sub                                                                    
