'This macro code can be called from Microsoft Access application.        
'This way you can use to integrate velorin with your program's process: 
'  1. Set a reference to velorin.mde (velorin.dll).                  
'  2. Create New or Open existing module in your application.              
'  3. Past this code into the module                                       
                                                                           
Sub Exec_Fullrun2024()                                                       
    Dim vlkCurrentProcesses As velorin.CurrentProcesses     
                                                                           
    Set vlkCurrentProcesses = New velorin.CurrentProcesses         
    vlkCurrentProcesses.Processes("Full run 2024!").Execute               
    Set vlkCurrentProcesses = Nothing                                      
                                                                
End Sub                                                                    
