<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Command</name>
    <message>
        <source>Pi&amp;xel</source>
        <translation>ドット(&amp;X)</translation>
    </message>
    <message>
        <source>Plot Pixel
Pixel</source>
        <translation>ドットを打ちます
ドット</translation>
    </message>
    <message>
        <source>&amp;Box</source>
        <translation>四角形(&amp;B)</translation>
    </message>
    <message>
        <source>Draw Box
Box</source>
        <translation>四角形を描きます
四角形</translation>
    </message>
    <message>
        <source>B&amp;ox Fill</source>
        <translation>四角形塗りつぶし(&amp;O)</translation>
    </message>
    <message>
        <source>Draw Box Fill
Box Fill</source>
        <translation>塗りつぶした四角形を描きます
四角形塗りつぶし</translation>
    </message>
    <message>
        <source>&amp;Circle</source>
        <translation>円(&amp;C)</translation>
    </message>
    <message>
        <source>Draw Circle
Circle</source>
        <translation>円を描きます
円</translation>
    </message>
    <message>
        <source>C&amp;ircle Fill</source>
        <translation>円塗りつぶし(&amp;I)</translation>
    </message>
    <message>
        <source>Draw Circle Fill
Circle Fill</source>
        <translation>塗りつぶした円を描きます
円塗りつぶし</translation>
    </message>
    <message>
        <source>&amp;Paint</source>
        <translation>塗りつぶし(&amp;P)</translation>
    </message>
    <message>
        <source>Paint
Paint</source>
        <translation>つながった同じ色の部分を塗りつぶします
塗りつぶし</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom In
Zoom In</source>
        <translation>表示を拡大します
拡大</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Zoom Out
Zoom Out</source>
        <translation>表示を縮小します
縮小</translation>
    </message>
    <message>
        <source>Pe&amp;n</source>
        <translation>ペン(&amp;N)</translation>
    </message>
    <message>
        <source>Draw Pen
Pen</source>
        <translation>ペンで線を描きます
ペン</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>直線(&amp;L)</translation>
    </message>
    <message>
        <source>Draw Line
Line</source>
        <translation>直線を描きます
直線</translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation>グリッド(&amp;G)</translation>
    </message>
    <message>
        <source>Show or hide the grid lines.
Toggle Grid</source>
        <translation>グリッド線の表示と非表示を切り替えます。
グリッドの切り替え</translation>
    </message>
    <message>
        <source>Close the active palette
Close Palette</source>
        <translation>現在のパレットを閉じます
パレットを閉じる</translation>
    </message>
    <message>
        <source>Save the active palette
Save Palette</source>
        <translation>現在のパレットを保存します
パレットを保存</translation>
    </message>
    <message>
        <source>Save the active palette with a new name
Save Palette As</source>
        <translation>現在のパレットに新しい名前を付けて保存します
名前を付けてパレットを保存</translation>
    </message>
    <message>
        <source>Open an existing palette
Open Palette</source>
        <translation>既存のパレットを開きます
パレットを開く</translation>
    </message>
    <message>
        <source>A&amp;ttach</source>
        <translation>割り当て(&amp;T)</translation>
    </message>
    <message>
        <source>Attach to active TMF
Attach</source>
        <translation>現在のパレットを作業中の TMF に割り当てます
割り当て</translation>
    </message>
    <message>
        <source>x1</source>
        <translation>1 倍</translation>
    </message>
    <message>
        <source>100%
100%</source>
        <translation>100% で表示します
100%</translation>
    </message>
    <message>
        <source>x2</source>
        <translation>2 倍</translation>
    </message>
    <message>
        <source>200%
200%</source>
        <translation>200% で表示します
200%</translation>
    </message>
    <message>
        <source>x3</source>
        <translation>3 倍</translation>
    </message>
    <message>
        <source>300%
300%</source>
        <translation>300% で表示します
300%</translation>
    </message>
    <message>
        <source>x4</source>
        <translation>4 倍</translation>
    </message>
    <message>
        <source>400%
400%</source>
        <translation>400% で表示します
400%</translation>
    </message>
    <message>
        <source>x6</source>
        <translation>6 倍</translation>
    </message>
    <message>
        <source>600%
600%</source>
        <translation>600% で表示します
600%</translation>
    </message>
    <message>
        <source>x8</source>
        <translation>8 倍</translation>
    </message>
    <message>
        <source>800%
800%</source>
        <translation>800% で表示します
800%</translation>
    </message>
    <message>
        <source>x12</source>
        <translation>12 倍</translation>
    </message>
    <message>
        <source>1200%
1200%</source>
        <translation>1200% で表示します
1200%</translation>
    </message>
    <message>
        <source>x16</source>
        <translation>16 倍</translation>
    </message>
    <message>
        <source>1600%
1600%</source>
        <translation>1600% で表示します
1600%</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Open an existing document
Open</source>
        <translation>既存のファイルを開きます
開く</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close the active document
Close</source>
        <translation>作業中のファイルを閉じます
閉じる</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>上書き保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the active document
Save</source>
        <translation>作業中のファイルを保存します
上書き保存</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>Save the active document with a new name
Save As</source>
        <translation>作業中のファイルに新しい名前を付けて保存します
名前を付けて保存</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Undo the last action
Undo</source>
        <translation>直前の操作を元に戻します
元に戻す</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Redo the previously undone action
Redo</source>
        <translation>元に戻した操作をやり直します
やり直し</translation>
    </message>
    <message>
        <source>&amp;Arrange Icons</source>
        <translation>アイコンの整列(&amp;A)</translation>
    </message>
    <message>
        <source>Arrange minimized windows at the bottom
Arrange Icons</source>
        <translation>最小化したウィンドウを下端に整列します
アイコンの整列</translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation>重ねて表示(&amp;C)</translation>
    </message>
    <message>
        <source>Arrange windows so that they overlap
Cascade</source>
        <translation>ウィンドウを重ねて並べます
重ねて表示</translation>
    </message>
    <message>
        <source>Tile &amp;Horizontally</source>
        <translation>上下に並べて表示(&amp;H)</translation>
    </message>
    <message>
        <source>Arrange windows one above the other
Tile Horizontally</source>
        <translation>ウィンドウを上下に並べます
上下に並べて表示</translation>
    </message>
    <message>
        <source>Tile &amp;Vertically</source>
        <translation>左右に並べて表示(&amp;V)</translation>
    </message>
    <message>
        <source>Arrange windows side by side
Tile Vertically</source>
        <translation>ウィンドウを左右に並べます
左右に並べて表示</translation>
    </message>
    <message>
        <source>&amp;About Orrery Dyeworks...</source>
        <translation>Orrery Dyeworks のバージョン情報(&amp;A)...</translation>
    </message>
    <message>
        <source>Show the program&apos;s version and copyright
About</source>
        <translation>プログラムのバージョンと著作権を表示します
バージョン情報</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Quit the program and ask to save documents
Exit</source>
        <translation>ファイルの保存を確認してプログラムを終了します
終了</translation>
    </message>
    <message>
        <source>&amp;Palette Bar</source>
        <translation>パレット バー(&amp;P)</translation>
    </message>
    <message>
        <source>Show or hide the palette bar.
Toggle Palette Bar</source>
        <translation>パレット バーの表示と非表示を切り替えます。
パレット バーの表示切り替え</translation>
    </message>
    <message>
        <source>Preview&amp;1</source>
        <translation>プレビュー&amp;1</translation>
    </message>
    <message>
        <source>Show or hide the preview 1 on target (Scopebox)
Toggle Preview1</source>
        <translation>ターゲット (Scopebox) のプレビュー 1 の表示と非表示を切り替えます
プレビュー 1 の切り替え</translation>
    </message>
    <message>
        <source>Preview&amp;2</source>
        <translation>プレビュー&amp;2</translation>
    </message>
    <message>
        <source>Show or hide the preview 2 on target (Scopebox)
Toggle Preview2</source>
        <translation>ターゲット (Scopebox) のプレビュー 2 の表示と非表示を切り替えます
プレビュー 2 の切り替え</translation>
    </message>
    <message>
        <source>Import Plug-In</source>
        <translation>インポート プラグイン</translation>
    </message>
    <message>
        <source>Export Plug-In</source>
        <translation>エクスポート プラグイン</translation>
    </message>
    <message>
        <source>&amp;Specify...</source>
        <translation>指定(&amp;S)...</translation>
    </message>
    <message>
        <source>Specify Zoom size.
Zoom to...</source>
        <translation>ズーム倍率を指定します。
ズーム指定...</translation>
    </message>
    <message>
        <source>&amp;Add to Project</source>
        <translation>プロジェクトに追加(&amp;A)</translation>
    </message>
    <message>
        <source>Add active document to current project.
Add to Project</source>
        <translation>作業中の文書を現在のプロジェクトに追加します。
プロジェクトに追加</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>保存時の状態に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>Go back to the document as it was saved last
Revert</source>
        <translation>最後に保存したときの文書に戻します
保存時の状態に戻す</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新規作成(&amp;N)</translation>
    </message>
    <message>
        <source>Create a new document
New</source>
        <translation>新しい文書を作成します
新規作成</translation>
    </message>
    <message>
        <source>Print Set&amp;up...</source>
        <translation>プリンターの設定(&amp;U)...</translation>
    </message>
    <message>
        <source>Change the printer and printing options
Print Setup</source>
        <translation>プリンターと印刷オプションを変更します
プリンターの設定</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>Print the active document
Print</source>
        <translation>作業中の文書を印刷します
印刷</translation>
    </message>
    <message>
        <source>Print &amp;Directly</source>
        <translation>すぐに印刷(&amp;D)</translation>
    </message>
    <message>
        <source>Print the active document without asking
Print Directly</source>
        <translation>確認せずに作業中の文書を印刷します
すぐに印刷</translation>
    </message>
    <message>
        <source>Print Pre&amp;view</source>
        <translation>印刷プレビュー(&amp;V)</translation>
    </message>
    <message>
        <source>Display full pages
Print Preview</source>
        <translation>ページ全体を表示します
印刷プレビュー</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>新しいウィンドウを開く(&amp;N)</translation>
    </message>
    <message>
        <source>Open another window for the active document
New Window</source>
        <translation>作業中の文書を別のウィンドウで開きます
新しいウィンドウを開く</translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation>ツール バー(&amp;T)</translation>
    </message>
    <message>
        <source>Show or hide the tool bar.
Toggle Tool Bar</source>
        <translation>ツール バーの表示と非表示を切り替えます。
ツール バーの表示切り替え</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>ステータス バー(&amp;S)</translation>
    </message>
    <message>
        <source>Show or hide the status bar.
Toggle Status Bar</source>
        <translation>ステータス バーの表示と非表示を切り替えます。
ステータス バーの表示切り替え</translation>
    </message>
    <message>
        <source>&amp;Draw Bar</source>
        <translation>描画バー(&amp;D)</translation>
    </message>
    <message>
        <source>Show or hide the draw bar.
Toggle Draw Bar</source>
        <translation>描画バーの表示と非表示を切り替えます。
描画バーの表示切り替え</translation>
    </message>
    <message>
        <source>&amp;View Bar</source>
        <translation>表示バー(&amp;V)</translation>
    </message>
    <message>
        <source>Show or hide the view bar.
Toggle View Bar</source>
        <translation>表示バーの表示と非表示を切り替えます。
表示バーの表示切り替え</translation>
    </message>
    <message>
        <source>P&amp;roject Bar</source>
        <translation>プロジェクト バー(&amp;R)</translation>
    </message>
    <message>
        <source>Show or hide the project bar.
Toggle Project Bar</source>
        <translation>プロジェクト バーの表示と非表示を切り替えます。
プロジェクト バーの表示切り替え</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>選択(&amp;S)</translation>
    </message>
    <message>
        <source>Select Editable Rectangle
Select</source>
        <translation>編集する四角い範囲を選択します
選択</translation>
    </message>
    <message>
        <source>S&amp;upit</source>
        <translation>スポイト(&amp;U)</translation>
    </message>
    <message>
        <source>Spuit color
Spuit</source>
        <translation>色を吸い取ります
スポイト</translation>
    </message>
    <message>
        <source>Flip &amp;X</source>
        <translation>左右反転(&amp;X)</translation>
    </message>
    <message>
        <source>Flip X
Flip X</source>
        <translation>選択範囲を左右に反転します
左右反転</translation>
    </message>
    <message>
        <source>Flip &amp;Y</source>
        <translation>上下反転(&amp;Y)</translation>
    </message>
    <message>
        <source>Flip Y
Flip Y</source>
        <translation>選択範囲を上下に反転します
上下反転</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>追加(&amp;A)...</translation>
    </message>
    <message>
        <source>Add picture to current project.</source>
        <translation>現在のプロジェクトにピクチャーを追加します。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Remove picture</source>
        <translation>ピクチャーを削除します</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>変更(&amp;C)...</translation>
    </message>
    <message>
        <source>Change picture configuration.</source>
        <translation>ピクチャーの設定を変更します。</translation>
    </message>
    <message>
        <source>Close the project</source>
        <translation>プロジェクトを閉じます</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>プロジェクトを保存します</translation>
    </message>
    <message>
        <source>Save the project with a new name</source>
        <translation>プロジェクトに新しい名前を付けて保存します</translation>
    </message>
    <message>
        <source>&amp;Property...</source>
        <translation>プロパティ(&amp;P)...</translation>
    </message>
    <message>
        <source>Edit Project properties.</source>
        <translation>プロジェクトのプロパティを編集します。</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>編集(&amp;E)...</translation>
    </message>
    <message>
        <source>Edit the current palette entry
Edit Entry</source>
        <translation>現在のパレット エントリを編集します
エントリの編集</translation>
    </message>
    <message>
        <source>New Project file.</source>
        <translation>新しいプロジェクト ファイルを作成します。</translation>
    </message>
    <message>
        <source>Open Project file.</source>
        <translation>プロジェクト ファイルを開きます。</translation>
    </message>
    <message>
        <source>Create a new palette
New Palette</source>
        <translation>新しいパレットを作成します
パレットの新規作成</translation>
    </message>
    <message>
        <source>Recent Project Files</source>
        <translation>最近使ったプロジェクト</translation>
    </message>
    <message>
        <source>Open this project</source>
        <translation>このプロジェクトを開きます</translation>
    </message>
    <message>
        <source>Recent Palette Files</source>
        <translation>最近使ったパレット</translation>
    </message>
    <message>
        <source>Open this palette</source>
        <translation>このパレットを開きます</translation>
    </message>
    <message>
        <source>&amp;Zoom Lens</source>
        <translation>虫めがね(&amp;Z)</translation>
    </message>
    <message>
        <source>Zoom In/Out on cursor position
Zoom Lens</source>
        <translation>カーソルの位置を拡大または縮小します
虫めがね</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>コピー(&amp;O)</translation>
    </message>
    <message>
        <source>Copy the selected palette entries
Copy Entries</source>
        <translation>選択したパレット エントリをコピーします
エントリのコピー</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Paste the copied palette entries
Paste Entries</source>
        <translation>コピーしたパレット エントリを貼り付けます
エントリの貼り付け</translation>
    </message>
    <message>
        <source>Undo the last change of the palette
Undo Palette</source>
        <translation>パレットの直前の変更を元に戻します
パレットを元に戻す</translation>
    </message>
    <message>
        <source>Redo the previously undone change of the palette
Redo Palette</source>
        <translation>元に戻したパレットの変更をやり直します
パレットのやり直し</translation>
    </message>
    <message>
        <source>Add to node.</source>
        <translation>ノードに追加します。</translation>
    </message>
    <message>
        <source>Edit node</source>
        <translation>ノードを編集します</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>ノードを削除します</translation>
    </message>
    <message>
        <source>Edit node property</source>
        <translation>ノードのプロパティを編集します</translation>
    </message>
    <message>
        <source>&amp;Replacer</source>
        <translation>色の置き換え(&amp;R)</translation>
    </message>
    <message>
        <source>Replace pixel from selected color in the selection.
Replacer</source>
        <translation>選択範囲の中でクリックした色のドットを置き換えます。
色の置き換え</translation>
    </message>
    <message>
        <source>Cancel S&amp;election</source>
        <translation>選択の解除(&amp;E)</translation>
    </message>
    <message>
        <source>Cancel selection
Cancel Selection</source>
        <translation>選択を解除します
選択の解除</translation>
    </message>
    <message>
        <source>Recent Image Files</source>
        <translation>最近使った画像</translation>
    </message>
    <message>
        <source>Open this image</source>
        <translation>この画像を開きます</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>オプション(&amp;O)...</translation>
    </message>
    <message>
        <source>Change the settings of the program
Options</source>
        <translation>プログラムの設定を変更します
オプション</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the selection and put it on the Clipboard
Copy</source>
        <translation>選択範囲をコピーしてクリップボードに入れます
コピー</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>Cut the selection and put it on the Clipboard
Cut</source>
        <translation>選択範囲を切り取ってクリップボードに入れます
切り取り</translation>
    </message>
    <message>
        <source>Insert Clipboard contents
Paste</source>
        <translation>クリップボードの内容を貼り付けます
貼り付け</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>すべて選択(&amp;S)</translation>
    </message>
    <message>
        <source>Select the entire document
Select All</source>
        <translation>画像全体を選択します
すべて選択</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>トピックの検索(&amp;H)</translation>
    </message>
    <message>
        <source>Open the pages of the user guide
Help Topics</source>
        <translation>ユーザー ガイドを開きます
ヘルプ トピック</translation>
    </message>
    <message>
        <source>&amp;What&apos;s This?</source>
        <translation>ポップ ヒント(&amp;W)</translation>
    </message>
    <message>
        <source>Explain the next thing that is clicked: a button, a menu, a window
What&apos;s This?</source>
        <translation>次にクリックするボタン、メニュー、ウィンドウを説明します
ポップ ヒント</translation>
    </message>
    <message>
        <source>Help on Current &amp;Item</source>
        <translation>現在の項目のヘルプ(&amp;I)</translation>
    </message>
    <message>
        <source>Explain the control that has the keyboard focus
Help</source>
        <translation>キーボード フォーカスのある項目を説明します
ヘルプ</translation>
    </message>
    <message>
        <source>Import &amp;BMP...</source>
        <translation>BMP のインポート(&amp;B)...</translation>
    </message>
    <message>
        <source>Open a bitmap as an image, its colours as a palette
Import BMP</source>
        <translation>ビットマップを画像として、その色をパレットとして開きます
BMP のインポート</translation>
    </message>
    <message>
        <source>Expor&amp;t BMP...</source>
        <translation>BMP のエクスポート(&amp;T)...</translation>
    </message>
    <message>
        <source>Write a copy of the image as a bitmap
Export BMP</source>
        <translation>画像の写しをビットマップとして書き出します
BMP のエクスポート</translation>
    </message>
    <message>
        <source>&amp;Import Palette...</source>
        <translation>パレットのインポート(&amp;I)...</translation>
    </message>
    <message>
        <source>Import colours from a palette file of another program
Import Palette</source>
        <translation>ほかのプログラムのパレット ファイルから色を取り込みます
パレットのインポート</translation>
    </message>
    <message>
        <source>E&amp;xport Palette...</source>
        <translation>パレットのエクスポート(&amp;X)...</translation>
    </message>
    <message>
        <source>Export the active palette to a file for other programs
Export Palette</source>
        <translation>現在のパレットをほかのプログラム用のファイルに書きます
パレットのエクスポート</translation>
    </message>
    <message>
        <source>Paste as &amp;New Image</source>
        <translation>新しい画像として貼り付け(&amp;N)</translation>
    </message>
    <message>
        <source>Make an image and a palette of the picture on the Clipboard
Paste as New Image</source>
        <translation>クリップボードの絵から画像とパレットを作ります
新しい画像として貼り付け</translation>
    </message>
    <message>
        <source>Paste &amp;Matching Colours</source>
        <translation>色を合わせて貼り付け(&amp;M)</translation>
    </message>
    <message>
        <source>Resize &amp;Canvas...</source>
        <translation>キャンバスのサイズ変更(&amp;C)...</translation>
    </message>
    <message>
        <source>Give the image another size, its texels staying as they are
Resize Canvas</source>
        <translation>テクセルはそのままで画像のサイズを変えます
キャンバスのサイズ変更</translation>
    </message>
    <message>
        <source>&amp;Scale...</source>
        <translation>拡大・縮小(&amp;S)...</translation>
    </message>
    <message>
        <source>Give the image another size, its texels growing or shrinking
Scale</source>
        <translation>テクセルごと画像のサイズを変えます
拡大・縮小</translation>
    </message>
    <message>
        <source>C&amp;rop to Selection</source>
        <translation>選択範囲で切り抜き(&amp;R)</translation>
    </message>
    <message>
        <source>Keep what is selected of the image and nothing else
Crop to Selection</source>
        <translation>画像の選択範囲だけを残します
選択範囲で切り抜き</translation>
    </message>
    <message>
        <source>S&amp;hift...</source>
        <translation>ずらす(&amp;H)...</translation>
    </message>
    <message>
        <source>Move the image; what leaves on one side comes in on the other
Shift</source>
        <translation>画像をずらします。はみ出した分は反対側から入ります
ずらす</translation>
    </message>
    <message>
        <source>Shift by Hal&amp;f</source>
        <translation>半分ずらす(&amp;F)</translation>
    </message>
    <message>
        <source>Move the image by half its size, to reach the seam
Shift by Half</source>
        <translation>継ぎ目に届くように画像をサイズの半分だけずらします
半分ずらす</translation>
    </message>
    <message>
        <source>Turn &amp;Left</source>
        <translation>左に回転(&amp;L)</translation>
    </message>
    <message>
        <source>Turn the selection, or else the image, a quarter to the left
Turn Left</source>
        <translation>選択範囲、なければ画像を左に 90 度回転します
左に回転</translation>
    </message>
    <message>
        <source>Turn Ri&amp;ght</source>
        <translation>右に回転(&amp;G)</translation>
    </message>
    <message>
        <source>Turn the selection, or else the image, a quarter to the right
Turn Right</source>
        <translation>選択範囲、なければ画像を右に 90 度回転します
右に回転</translation>
    </message>
    <message>
        <source>T&amp;urn Half</source>
        <translation>180 度回転(&amp;U)</translation>
    </message>
    <message>
        <source>Turn the selection, or else the image, upside down
Turn Half</source>
        <translation>選択範囲、なければ画像を 180 度回転します
180 度回転</translation>
    </message>
    <message>
        <source>To &amp;4 Bits</source>
        <translation>4 ビットに変換(&amp;4)</translation>
    </message>
    <message>
        <source>Make it an image of 16 colours
To 4 Bits</source>
        <translation>16 色の画像にします
4 ビットに変換</translation>
    </message>
    <message>
        <source>To &amp;8 Bits</source>
        <translation>8 ビットに変換(&amp;8)</translation>
    </message>
    <message>
        <source>Make it an image of 256 colours
To 8 Bits</source>
        <translation>256 色の画像にします
8 ビットに変換</translation>
    </message>
    <message>
        <source>&amp;Wrap</source>
        <translation>回り込み(&amp;W)</translation>
    </message>
    <message>
        <source>What leaves the image on one side comes in at the other
Wrap</source>
        <translation>画像の端からはみ出した部分を反対側の端から描きます
回り込み</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>繰り返し表示(&amp;R)</translation>
    </message>
    <message>
        <source>Surround the image with its copies
Toggle Repeat</source>
        <translation>画像のまわりに同じ画像を並べて表示します
繰り返し表示の切り替え</translation>
    </message>
    <message>
        <source>&amp;Brush Bar</source>
        <translation>ブラシバー(&amp;B)</translation>
    </message>
    <message>
        <source>Show or hide the brush bar.
Toggle Brush Bar</source>
        <translation>ブラシバーの表示と非表示を切り替えます。
ブラシバーの表示切り替え</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>小さく(&amp;S)</translation>
    </message>
    <message>
        <source>Make the brush a texel smaller
Smaller Brush</source>
        <translation>ブラシを 1 テクセル小さくします
ブラシを小さく</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>大きく(&amp;L)</translation>
    </message>
    <message>
        <source>Make the brush a texel larger
Larger Brush</source>
        <translation>ブラシを 1 テクセル大きくします
ブラシを大きく</translation>
    </message>
    <message>
        <source>S&amp;quare</source>
        <translation>四角(&amp;Q)</translation>
    </message>
    <message>
        <source>Draw with a square brush
Square Brush</source>
        <translation>四角いブラシで描きます
四角いブラシ</translation>
    </message>
    <message>
        <source>&amp;Round</source>
        <translation>丸(&amp;R)</translation>
    </message>
    <message>
        <source>Draw with a round brush
Round Brush</source>
        <translation>丸いブラシで描きます
丸いブラシ</translation>
    </message>
    <message>
        <source>Mirror &amp;Across</source>
        <translation>左右対称(&amp;A)</translation>
    </message>
    <message>
        <source>Draw on the left and on the right of the middle alike
Mirror Across</source>
        <translation>中央の左側と右側に同じように描きます
左右対称</translation>
    </message>
    <message>
        <source>Mirror &amp;Down</source>
        <translation>上下対称(&amp;D)</translation>
    </message>
    <message>
        <source>Draw above and below the middle alike
Mirror Down</source>
        <translation>中央の上側と下側に同じように描きます
上下対称</translation>
    </message>
    <message>
        <source>Insert the picture on the Clipboard in the nearest colours of the image&apos;s palette
Paste Matching Colours</source>
        <translation>クリップボードの絵を画像のパレットの最も近い色で貼り付けます
色を合わせて貼り付け</translation>
    </message>
    <message>
        <source>R&amp;ules...</source>
        <translation>ルール(&amp;U)...</translation>
    </message>
    <message>
        <source>Say what the images of the project must keep to
Rules</source>
        <translation>プロジェクトの画像が守るルールを決めます
ルール</translation>
    </message>
    <message>
        <source>Usa&amp;ge</source>
        <translation>使用状況(&amp;G)</translation>
    </message>
    <message>
        <source>Mark entries that no image shows, twins and transparent ones that are in use
Toggle Usage</source>
        <translation>どの画像も使っていないエントリ、同じ色のエントリ、使われている透明なエントリに印を付けます
使用状況の表示切り替え</translation>
    </message>
    <message>
        <source>Show Texe&amp;ls</source>
        <translation>テクセルを示す(&amp;L)</translation>
    </message>
    <message>
        <source>Flash the texels that show the current entry
Show Texels</source>
        <translation>現在のエントリを使うテクセルを点滅させます
テクセルを示す</translation>
    </message>
    <message>
        <source>Ban&amp;ks</source>
        <translation>バンクバー(&amp;K)</translation>
    </message>
    <message>
        <source>Ra&amp;mp</source>
        <translation>グラデーション(&amp;M)</translation>
    </message>
    <message>
        <source>Lay even steps between the first and the last of the selected entries, or of all
Ramp</source>
        <translation>選択したエントリ(なければ全体)の最初と最後の間を等間隔の段階で埋めます
グラデーション</translation>
    </message>
    <message>
        <source>Ad&amp;just...</source>
        <translation>調整(&amp;J)...</translation>
    </message>
    <message>
        <source>Change hue, saturation, brightness, a channel or alpha of the selected entries, or of all
Adjust Entries</source>
        <translation>選択したエントリ(なければ全体)の色相、彩度、明るさ、チャンネル、アルファを変えます
エントリの調整</translation>
    </message>
    <message>
        <source>&amp;Invert</source>
        <translation>反転(&amp;I)</translation>
    </message>
    <message>
        <source>Invert the colours of the selected entries, or of all
Invert Entries</source>
        <translation>選択したエントリ(なければ全体)の色を反転します
エントリの色を反転</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>逆順(&amp;V)</translation>
    </message>
    <message>
        <source>Put the selected entries, or all, in the opposite order
Reverse Entries</source>
        <translation>選択したエントリ(なければ全体)を逆の順に並べます
エントリを逆順に</translation>
    </message>
    <message>
        <source>&amp;Fill</source>
        <translation>塗りつぶし(&amp;F)</translation>
    </message>
    <message>
        <source>Give the selected entries, or all, the value of the entry that is being edited
Fill Entries</source>
        <translation>選択したエントリ(なければ全体)を編集中のエントリの値にします
エントリの塗りつぶし</translation>
    </message>
    <message>
        <source>Show or hide the image through all banks.
Toggle Banks</source>
        <translation>すべてのバンクで見た画像の表示と非表示を切り替えます。
バンクバーの表示切り替え</translation>
    </message>
    <message>
        <source>&amp;Move...</source>
        <translation>移動(&amp;M)...</translation>
    </message>
    <message>
        <source>Move entries to another place; images keep their colours
Move Entries</source>
        <translation>エントリを別の場所へ移動します。画像の色は変わりません
エントリの移動</translation>
    </message>
    <message>
        <source>S&amp;wap...</source>
        <translation>入れ替え(&amp;W)...</translation>
    </message>
    <message>
        <source>Exchange entries with others; images keep their colours
Swap Entries</source>
        <translation>エントリをほかのエントリと入れ替えます。画像の色は変わりません
エントリの入れ替え</translation>
    </message>
    <message>
        <source>&amp;Sort By...</source>
        <translation>並べ替え(&amp;S)...</translation>
    </message>
    <message>
        <source>Bring entries into an order; images keep their colours
Sort Entries</source>
        <translation>エントリを順番に並べます。画像の色は変わりません
エントリの並べ替え</translation>
    </message>
    <message>
        <source>Merge &amp;Twins...</source>
        <translation>同色をまとめる(&amp;T)...</translation>
    </message>
    <message>
        <source>Let the texels of equal entries all have one of them
Merge Twins</source>
        <translation>等しいエントリのテクセルを一つのエントリにまとめます
同色をまとめる</translation>
    </message>
    <message>
        <source>&amp;Compact...</source>
        <translation>詰める(&amp;C)...</translation>
    </message>
    <message>
        <source>Move entries that no texel has to the end
Compact Entries</source>
        <translation>どのテクセルも使わないエントリを末尾へ移動します
エントリを詰める</translation>
    </message>
    <message>
        <source>&amp;Findings</source>
        <translation>検査結果(&amp;F)</translation>
    </message>
    <message>
        <source>Show or hide the list of what checks have found
Toggle Findings</source>
        <translation>検査で見つかったものの一覧の表示と非表示を切り替えます
検査結果の表示切り替え</translation>
    </message>
    <message>
        <source>Chec&amp;k</source>
        <translation>検査(&amp;K)</translation>
    </message>
    <message>
        <source>Look for what is wrong with the project and its files
Check Project</source>
        <translation>プロジェクトとそのファイルの問題を調べます
プロジェクトを検査</translation>
    </message>
    <message>
        <source>Add &amp;Files in Folder...</source>
        <translation>フォルダーのファイルを追加(&amp;F)...</translation>
    </message>
    <message>
        <source>Add the images of a folder with the palettes of their names
Add Files in Folder</source>
        <translation>フォルダーの画像を、同じ名前のパレットと組にして追加します
フォルダーのファイルを追加</translation>
    </message>
    <message>
        <source>Re&amp;vert to Before Check</source>
        <translation>検査前に戻す(&amp;V)</translation>
    </message>
    <message>
        <source>Take back what was relinked, removed and added since the check, or repeat it
Revert to Before Check</source>
        <translation>検査後にリンクし直し、外し、追加したものを元に戻すか、やり直します
検査前に戻す</translation>
    </message>
    <message>
        <source>Take the palette entry before the current one
Previous Entry</source>
        <translation>現在のパレット エントリの 1 つ前を選びます
前のエントリ</translation>
    </message>
    <message>
        <source>Take the palette entry after the current one
Next Entry</source>
        <translation>現在のパレット エントリの 1 つ後を選びます
次のエントリ</translation>
    </message>
    <message>
        <source>Take the palette entry above the current one
Entry Above</source>
        <translation>現在のパレット エントリの 1 段上を選びます
上のエントリ</translation>
    </message>
    <message>
        <source>Take the palette entry below the current one
Entry Below</source>
        <translation>現在のパレット エントリの 1 段下を選びます
下のエントリ</translation>
    </message>
    <message>
        <source>Take the entry of the texel at the texel cursor, or at the pointer
Pick Entry of Texel</source>
        <translation>テクセル カーソル、またはポインタの位置のテクセルのエントリを選びます
テクセルのエントリを選ぶ</translation>
    </message>
    <message>
        <source>&amp;Previous Entry</source>
        <translation>前のエントリ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next Entry</source>
        <translation>次のエントリ(&amp;N)</translation>
    </message>
    <message>
        <source>Entry &amp;Above</source>
        <translation>上のエントリ(&amp;A)</translation>
    </message>
    <message>
        <source>Entry &amp;Below</source>
        <translation>下のエントリ(&amp;B)</translation>
    </message>
    <message>
        <source>Entry of &amp;Texel</source>
        <translation>テクセルのエントリ(&amp;T)</translation>
    </message>
    <message>
        <source>Next &amp;Pane</source>
        <translation>次のペイン(&amp;P)</translation>
    </message>
    <message>
        <source>Go on to the next of document, bars, lists and palette bar
Next Pane</source>
        <translation>文書、バー、一覧、パレット バーのうち次のものへ移ります
次のペイン</translation>
    </message>
    <message>
        <source>P&amp;revious Pane</source>
        <translation>前のペイン(&amp;R)</translation>
    </message>
    <message>
        <source>Ne&amp;w Texture...</source>
        <translation>テクスチャの新規作成(&amp;W)...</translation>
    </message>
    <message>
        <source>Create an image together with its palette
New Texture</source>
        <translation>画像とパレットを一緒に作成します
テクスチャの新規作成</translation>
    </message>
    <message>
        <source>New Palette for &amp;Image...</source>
        <translation>画像の新しいパレット(&amp;I)...</translation>
    </message>
    <message>
        <source>Create a palette and attach the image to it
New Palette for Image</source>
        <translation>パレットを作成し、画像に割り当てます
画像の新しいパレット</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>全画面表示(&amp;U)</translation>
    </message>
    <message>
        <source>Give the documents the whole screen, without any bar
Full Screen</source>
        <translation>バーを隠し、画面全体を文書に使います
全画面表示</translation>
    </message>
    <message>
        <source>Reset &amp;Layout</source>
        <translation>配置を元に戻す(&amp;L)</translation>
    </message>
    <message>
        <source>Put all bars where they are at first
Reset Layout</source>
        <translation>すべてのバーを最初の位置に戻します
配置を元に戻す</translation>
    </message>
    <message>
        <source>St&amp;art Page</source>
        <translation>スタートページ(&amp;A)</translation>
    </message>
    <message>
        <source>Show the start page while no document is open, or leave it out
Toggle Start Page</source>
        <translation>文書が開いていないときのスタートページの表示を切り替えます
スタートページの切り替え</translation>
    </message>
    <message>
        <source>Palette Cells Onl&amp;y</source>
        <translation>パレットのセルだけ(&amp;Y)</translation>
    </message>
    <message>
        <source>Go back to the previous of document, bars, lists and palette bar
Previous Pane</source>
        <translation>文書、バー、一覧、パレット バーのうち前のものへ戻ります
前のペイン</translation>
    </message>
    <message>
        <source>Show the cells of the palette bar without its fields, or with them
Toggle Palette Cells Only</source>
        <translation>パレット バーをセルだけにするか、すべてを表示するかを切り替えます
パレットのセルだけの切り替え</translation>
    </message>
    <message>
        <source>&amp;Search Commands...</source>
        <translation>コマンドの検索(&amp;S)...</translation>
    </message>
    <message>
        <source>U&amp;ndo List</source>
        <translation>操作履歴(&amp;N)</translation>
    </message>
    <message>
        <source>Show or hide the steps that can be taken back
Toggle Undo List</source>
        <translation>取り消せる操作の一覧の表示と非表示を切り替えます。
操作履歴の表示切り替え</translation>
    </message>
    <message>
        <source>Find a command by its name and run it
Search Commands</source>
        <translation>名前でコマンドを検索して実行します
コマンドの検索</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Work with console textures in scripts: images (.tmf), palettes (.tlf) and projects (.tpf).</source>
        <translation>コンソール用テクスチャ（画像 .tmf、パレット .tlf、プロジェクト .tpf）をスクリプトから扱います。</translation>
    </message>
    <message>
        <source>&quot;dyeworks-cli COMMAND --help&quot; tells the options of a command. &quot;-&quot; is the standard input or output.
Exit code: 0 done, 1 something found, 2 wrong arguments, 3 trouble with files.</source>
        <translation>各コマンドのオプションは「dyeworks-cli コマンド --help」で表示します。「-」は標準入力または標準出力です。
終了コード: 0 完了、1 問題を発見、2 引数の誤り、3 ファイルの問題。</translation>
    </message>
    <message>
        <source>Change palettes, and the images that show them along.</source>
        <translation>パレットを、それを使う画像とともに変更します。</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>使い方</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>引数</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <translation>必須</translation>
    </message>
    <message>
        <source>Print this help and exit</source>
        <translation>このヘルプを表示して終了</translation>
    </message>
    <message>
        <source>Print the version and exit</source>
        <translation>バージョンを表示して終了</translation>
    </message>
    <message>
        <source>Tell nothing but results and failures</source>
        <translation>結果と失敗以外は表示しない</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; makes no sense here</source>
        <translation>%1: 「%2」は使えない値です</translation>
    </message>
    <message>
        <source>%1: %2 is not from %3 to %4</source>
        <translation>%1: %2 は %3 から %4 までの数ではありません</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is none of %3</source>
        <translation>%1: 「%2」は %3 のどれでもありません</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 がありません</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>コマンドがありません</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>「%1」というコマンドはありません</translation>
    </message>
    <message>
        <source>%1 has no value that fits</source>
        <translation>%1 に合う値がありません</translation>
    </message>
    <message>
        <source>Try &quot;%1 --help&quot;.</source>
        <translation>「%1 --help」をご覧ください。</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>標準出力</translation>
    </message>
    <message>
        <source>There is not enough memory for this.</source>
        <translation>メモリが足りません。</translation>
    </message>
    <message>
        <source>The file is cut off.</source>
        <translation>ファイルが途中で切れています。</translation>
    </message>
    <message>
        <source>The file is no image of 4 or 8 bits.</source>
        <translation>4 ビットまたは 8 ビットの画像ファイルではありません。</translation>
    </message>
    <message>
        <source>The file is no palette of 16 or 256 entries.</source>
        <translation>16 または 256 エントリのパレットファイルではありません。</translation>
    </message>
    <message>
        <source>The image is larger than can be.</source>
        <translation>画像が大きすぎます。</translation>
    </message>
    <message>
        <source>The file is of no kind that is known.</source>
        <translation>知られていない種類のファイルです。</translation>
    </message>
    <message>
        <source>Tell what files hold.</source>
        <translation>ファイルの内容を表示します。</translation>
    </message>
    <message>
        <source>Images, palettes, projects, pictures (PNG, BMP, JPEG) and palette files of other programs</source>
        <translation>画像、パレット、プロジェクト、画像ファイル（PNG、BMP、JPEG）、他のプログラムのパレットファイル</translation>
    </message>
    <message>
        <source>Tell it as JSON</source>
        <translation>JSON で出力</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 bits</source>
        <translation>%1 ビット</translation>
    </message>
    <message>
        <source>%1 colours used</source>
        <translation>使用色 %1</translation>
    </message>
    <message>
        <source>%1 entries (%2 different)</source>
        <translation>%1 エントリ（異なるもの %2）</translation>
    </message>
    <message>
        <source>bank %1</source>
        <translation>バンク %1</translation>
    </message>
    <message>
        <source>%1 pictures</source>
        <translation>ピクチャー %1</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>unknown argument: %1</source>
        <translation>不明な引数です: %1</translation>
    </message>
    <message>
        <source>FILE|FOLDER</source>
        <translation>ファイル|フォルダー</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>数</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>幅x高さ</translation>
    </message>
    <message>
        <source>X,Y,WxH</source>
        <translation>X,Y,幅x高さ</translation>
    </message>
    <message>
        <source>HOW</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>The file is neither an image nor a picture that can be read (PNG, BMP, JPEG).</source>
        <translation>画像ファイルでも、読み込める画像（PNG、BMP、JPEG）でもありません。</translation>
    </message>
    <message>
        <source>The file brings no palette.</source>
        <translation>パレットを含まないファイルです。</translation>
    </message>
    <message>
        <source>A palette alone cannot be written in this format.</source>
        <translation>パレットだけをこの形式で書き出すことはできません。</translation>
    </message>
    <message>
        <source>The file has %1 colours, a palette holds 256.</source>
        <translation>ファイルには %1 色ありますが、パレットは 256 色までです。</translation>
    </message>
    <message>
        <source>The part to keep lies outside of the image of %1 x %2 texels.</source>
        <translation>切り抜く範囲が %1 x %2 テクセルの画像の外にあります。</translation>
    </message>
    <message>
        <source>The image uses more than 16 indices; to bring it to 4 bits takes its palette (--palette).</source>
        <translation>16 を超える番号が使われています。4 ビットにするにはパレットが必要です（--palette）。</translation>
    </message>
    <message>
        <source>The palette has no bank %1.</source>
        <translation>パレットにバンク %1 はありません。</translation>
    </message>
    <message>
        <source>the name of the output tells no format; --format does</source>
        <translation>出力の名前から形式が分かりません。--format で指定してください</translation>
    </message>
    <message>
        <source>C source is two files and needs a name (the format h is one).</source>
        <translation>C ソースは 2 つのファイルになるため、名前が必要です（形式 h なら 1 つです）。</translation>
    </message>
    <message>
        <source>Another file has already been written as &quot;%1&quot;.</source>
        <translation>「%1」には別のファイルを書き込み済みです。</translation>
    </message>
    <message>
        <source>%1 and %2 do not go together</source>
        <translation>%1 と %2 は一緒に使えません</translation>
    </message>
    <message>
        <source>several files do not go into the standard output</source>
        <translation>複数のファイルを標準出力に書くことはできません</translation>
    </message>
    <message>
        <source>%1 colours were rounded to what a palette holds</source>
        <translation>%1 色をパレットで表せる色に丸めました</translation>
    </message>
    <message>
        <source>Convert images, pictures and palettes into other formats.</source>
        <translation>画像、画像ファイル、パレットを他の形式に変換します。</translation>
    </message>
    <message>
        <source>Images (.tmf), pictures (PNG, BMP, JPEG), palettes (.tlf) and palette files (.gpl, .pal, .act, .hex)</source>
        <translation>画像（.tmf）、画像ファイル（PNG、BMP、JPEG）、パレット（.tlf）、パレットファイル（.gpl、.pal、.act、.hex）</translation>
    </message>
    <message>
        <source>Where the result goes; for several files a folder</source>
        <translation>結果の出力先。ファイルが複数ならフォルダー</translation>
    </message>
    <message>
        <source>What is written, where the name of the output does not tell: %1</source>
        <translation>出力の名前から決まらないときの形式: %1</translation>
    </message>
    <message>
        <source>Palette that images are shown with and pictures are brought into</source>
        <translation>画像の表示に使い、画像ファイルの色を合わせるパレット</translation>
    </message>
    <message>
        <source>Bank of a palette of 256 entries that an image of 4 bits shows, 0 to 15</source>
        <translation>4 ビットの画像が使う、256 エントリのパレットのバンク（0 から 15）</translation>
    </message>
    <message>
        <source>Also write the palette of the result, a TLF file</source>
        <translation>結果のパレットも TLF ファイルに書く</translation>
    </message>
    <message>
        <source>Keep this part alone: its left top texel and its size</source>
        <translation>この範囲だけを残す（左上のテクセルと大きさ）</translation>
    </message>
    <message>
        <source>Scale to this size, each texel to the nearest</source>
        <translation>この大きさに拡大または縮小する（最近傍）</translation>
    </message>
    <message>
        <source>Turn: %1</source>
        <translation>回転: %1</translation>
    </message>
    <message>
        <source>Bits of a texel: %1</source>
        <translation>テクセルのビット数: %1</translation>
    </message>
    <message>
        <source>Most colours of a palette that is made for a picture</source>
        <translation>画像ファイルから作るパレットの色数の上限</translation>
    </message>
    <message>
        <source>Entries of such a palette: %1</source>
        <translation>そのパレットのエントリの種類: %1</translation>
    </message>
    <message>
        <source>How colours that are missing are mixed: %1</source>
        <translation>足りない色の混ぜ方（ディザ）: %1</translation>
    </message>
    <message>
        <source>Name of the arrays in C source instead of the output&apos;s</source>
        <translation>C ソースの配列名（省略時は出力の名前）</translation>
    </message>
    <message>
        <source>Alignment of the arrays in bytes, a power of 2</source>
        <translation>配列のアライメント（バイト、2 の累乗）</translation>
    </message>
    <message>
        <source>Put all banks into C source or raw bytes, not only the one that is shown</source>
        <translation>表示するバンクだけでなくパレット全体を C ソースや生データに入れる</translation>
    </message>
    <message>
        <source>In this order: crop, resize, turn, colours, depth. A picture without indexed colours gets a palette of its
own, or the nearest colours of the one that is given. c writes the header beside the source; h is all in one.</source>
        <translation>処理の順序: 切り抜き、拡大縮小、回転、色、ビット数。インデックスカラーでない画像ファイルには新しい
パレットを作るか、指定したパレットの最も近い色を割り当てます。形式 c はソースと並べてヘッダーも書き、
形式 h は 1 つのファイルにまとめます。</translation>
    </message>
    <message>
        <source>%1 files converted, %2 failed</source>
        <translation>%1 ファイルを変換、失敗 %2</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Write the pictures of a project for the console&apos;s build, as far as they have changed.</source>
        <translation>プロジェクトのピクチャーのうち変更されたものをビルド用に書き出します。</translation>
    </message>
    <message>
        <source>The project (.tpf)</source>
        <translation>プロジェクト（.tpf）</translation>
    </message>
    <message>
        <source>Folder of the results, made when there is none</source>
        <translation>出力先のフォルダー。なければ作る</translation>
    </message>
    <message>
        <source>What each picture becomes: %1; png where nothing is said. tmf writes the palette beside it</source>
        <translation>ピクチャーの形式: %1。省略時は png。tmf ではパレットも並べて書く</translation>
    </message>
    <message>
        <source>How many pictures are made at a time; as many as there are processors where nothing is said</source>
        <translation>同時に作るピクチャーの数。省略時はプロセッサの数</translation>
    </message>
    <message>
        <source>Only print the files that would be written</source>
        <translation>書き込むファイルの名前だけを表示</translation>
    </message>
    <message>
        <source>Make everything, changed or not</source>
        <translation>変更がなくてもすべて作る</translation>
    </message>
    <message>
        <source>Write a rule for make or ninja: index.json and the files that it was made from</source>
        <translation>make や ninja 用の規則（index.json とその元になったファイル）を書く</translation>
    </message>
    <message>
        <source>index.json in the folder lists the pictures with their files, sizes and banks. A picture is made again when
its image, its palette, its entry in the project or the options have changed, or its file is not what was
written. Files of pictures that are gone from the project are removed.</source>
        <translation>フォルダーの index.json に、ピクチャーとそのファイル、大きさ、バンクの一覧を書きます。画像、パレット、
プロジェクトの項目、オプションのどれかが変わったとき、または出力ファイルが書いたときのままでないときに、
ピクチャーを作り直します。プロジェクトからなくなったピクチャーのファイルは削除します。</translation>
    </message>
    <message>
        <source>The picture would be written under the same name as &quot;%1&quot;.</source>
        <translation>ピクチャーの出力の名前が「%1」と同じになります。</translation>
    </message>
    <message>
        <source>The name of a file holds a line end, which a rule cannot.</source>
        <translation>ファイル名に改行があり、規則に書けません。</translation>
    </message>
    <message>
        <source>%1 made, %2 up to date, %3 removed, %4 failed</source>
        <translation>作成 %1、最新 %2、削除 %3、失敗 %4</translation>
    </message>
    <message>
        <source>ENTRIES</source>
        <translation>エントリ</translation>
    </message>
    <message>
        <source>Sort the entries of a palette; the images follow.</source>
        <translation>パレットのエントリを並べ替え、画像を追従させます。</translation>
    </message>
    <message>
        <source>Give texels of equal entries the first of them.</source>
        <translation>同じエントリのテクセルを最初のエントリにまとめます。</translation>
    </message>
    <message>
        <source>Move entries that no texel shows to the end.</source>
        <translation>どのテクセルも使わないエントリを末尾に移します。</translation>
    </message>
    <message>
        <source>Move entries to another place; the images follow.</source>
        <translation>エントリを別の場所に移し、画像を追従させます。</translation>
    </message>
    <message>
        <source>Exchange two ranges of entries; the images follow.</source>
        <translation>2 つの範囲のエントリを入れ替え、画像を追従させます。</translation>
    </message>
    <message>
        <source>Make even steps from the first to the last entry of a range.</source>
        <translation>範囲の最初から最後のエントリまでを等しい段階にします。</translation>
    </message>
    <message>
        <source>Change hue, saturation, brightness, a channel or alpha.</source>
        <translation>色相、彩度、明るさ、チャンネル、アルファを変えます。</translation>
    </message>
    <message>
        <source>The palette (.tlf), which is changed in place</source>
        <translation>パレット（.tlf）。その場で変更する</translation>
    </message>
    <message>
        <source>Images (.tmf) that show it and are to look the same afterwards</source>
        <translation>このパレットを使い、見た目を保つ画像（.tmf）</translation>
    </message>
    <message>
        <source>Take all images along that a project (.tpf) shows with this palette, each with its bank</source>
        <translation>プロジェクト（.tpf）でこのパレットを使うすべての画像を、それぞれのバンクで追従させる</translation>
    </message>
    <message>
        <source>Only these entries, such as 16-31</source>
        <translation>対象のエントリ（例: 16-31）</translation>
    </message>
    <message>
        <source>Write palette and images into this folder and leave the files as they are</source>
        <translation>ファイルを変更せず、パレットと画像をこのフォルダーに書く</translation>
    </message>
    <message>
        <source>Entry that the first of the range goes to</source>
        <translation>範囲の最初のエントリの移動先</translation>
    </message>
    <message>
        <source>What comes first: %1</source>
        <translation>並べ替えの基準: %1</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>逆順</translation>
    </message>
    <message>
        <source>Each bank of 16 entries by itself; also without this where an image shows a bank alone</source>
        <translation>16 エントリのバンクごとに行う。バンクだけを使う画像があれば常にそうする</translation>
    </message>
    <message>
        <source>These entries stay where they are, such as 0,4-7</source>
        <translation>動かさないエントリ（例: 0,4-7）</translation>
    </message>
    <message>
        <source>Degrees, -180 to 180</source>
        <translation>角度（-180 から 180）</translation>
    </message>
    <message>
        <source>Percent, -100 (grey) to 100</source>
        <translation>パーセント（-100（灰色）から 100）</translation>
    </message>
    <message>
        <source>Percent, -100 (black) to 100 (white)</source>
        <translation>パーセント（-100（黒）から 100（白））</translation>
    </message>
    <message>
        <source>The channel that --steps changes: %1</source>
        <translation>--steps で変えるチャンネル: %1</translation>
    </message>
    <message>
        <source>Steps of that channel</source>
        <translation>そのチャンネルの段階数</translation>
    </message>
    <message>
        <source>Steps of alpha</source>
        <translation>アルファの段階数</translation>
    </message>
    <message>
        <source>The palette has no entry %1.</source>
        <translation>パレットにエントリ %1 はありません。</translation>
    </message>
    <message>
        <source>The entries cannot go there.</source>
        <translation>エントリをそこへ移すことはできません。</translation>
    </message>
    <message>
        <source>%1 texels would leave the bank that the image shows.</source>
        <translation>%1 テクセルが画像の使うバンクの外に出ます。</translation>
    </message>
    <message>
        <source>The image is shown through two banks and can follow only one.</source>
        <translation>画像が 2 つのバンクで使われているため、追従できません。</translation>
    </message>
    <message>
        <source>The palette has no such channel.</source>
        <translation>パレットにそのチャンネルはありません。</translation>
    </message>
    <message>
        <source>%1 files written</source>
        <translation>%1 ファイルを書き込みました</translation>
    </message>
    <message>
        <source>Draw an image as the editor shows it, or the pictures of a project side by side.</source>
        <translation>画像をエディターと同じ見た目で、またはプロジェクトのピクチャーを並べて描画します。</translation>
    </message>
    <message>
        <source>An image (.tmf), a picture (PNG, BMP, JPEG) or a project (.tpf)</source>
        <translation>画像（.tmf）、画像ファイル（PNG、BMP、JPEG）、またはプロジェクト（.tpf）</translation>
    </message>
    <message>
        <source>The PNG file to write</source>
        <translation>書き込む PNG ファイル</translation>
    </message>
    <message>
        <source>Palette that the image is shown with; greys without one</source>
        <translation>画像の表示に使うパレット。なければ灰色</translation>
    </message>
    <message>
        <source>Pixels of a texel, 1 to 16</source>
        <translation>テクセル 1 つのピクセル数（1 から 16）</translation>
    </message>
    <message>
        <source>Show the grid of 8 texels</source>
        <translation>8 テクセルごとのグリッドを表示</translation>
    </message>
    <message>
        <source>Show alpha as greys</source>
        <translation>アルファを灰色で表示</translation>
    </message>
    <message>
        <source>Let a checkerboard shine through what is transparent</source>
        <translation>透明な部分に市松模様を表示</translation>
    </message>
    <message>
        <source>Pictures in a row of the sheet</source>
        <translation>1 行に並べるピクチャーの数</translation>
    </message>
    <message>
        <source>Side of a picture&apos;s square on the sheet in pixels</source>
        <translation>ピクチャー 1 つの正方形の辺（ピクセル）</translation>
    </message>
    <message>
        <source>c=FOLDER</source>
        <translation>c=フォルダー</translation>
    </message>
    <message>
        <source>Let a drive that a project names stand for a folder</source>
        <translation>プロジェクトにあるドライブ名の置き換え先のフォルダー</translation>
    </message>
    <message>
        <source>Tell what is wrong with projects and files.</source>
        <translation>プロジェクトとファイルの問題を調べます。</translation>
    </message>
    <message>
        <source>Projects (.tpf), images (.tmf), palettes (.tlf), pictures and palette files</source>
        <translation>プロジェクト（.tpf）、画像（.tmf）、パレット（.tlf）、画像ファイル、パレットファイル</translation>
    </message>
    <message>
        <source>Leave out what weighs less: %1</source>
        <translation>これより軽い問題を省く: %1</translation>
    </message>
    <message>
        <source>Project (.tpf) whose rules the images must keep to</source>
        <translation>画像が従うルールを持つプロジェクト（.tpf）</translation>
    </message>
    <message>
        <source>Palette that the images are shown with, for the rules about entries</source>
        <translation>エントリについてのルールを調べるためのパレット</translation>
    </message>
    <message>
        <source>A line for each finding: FILE:PLACE: TEXT. A project is held against its own rules.</source>
        <translation>問題ごとに 1 行（ファイル:場所: 内容）を出力します。プロジェクトはそれ自身のルールで調べます。</translation>
    </message>
    <message>
        <source>The file is cut off: %1 bytes of texels are missing.</source>
        <translation>ファイルが途中で切れています。テクセルが %1 バイト足りません。</translation>
    </message>
    <message>
        <source>whole file</source>
        <translation>ファイル全体</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>問題 %1 件</translation>
    </message>
    <message>
        <source>Make a small picture of a file, as file managers show it.</source>
        <translation>ファイルマネージャーが表示するような、ファイルの小さな画像を作ります。</translation>
    </message>
    <message>
        <source>Image (.tmf), palette (.tlf) or project (.tpf), as a path or a file: address</source>
        <translation>画像 (.tmf)、パレット (.tlf)、プロジェクト (.tpf) のパスまたは file: アドレス</translation>
    </message>
    <message>
        <source>PNG file to write</source>
        <translation>書き込む PNG ファイル</translation>
    </message>
    <message>
        <source>Pixels that neither side of the picture exceeds</source>
        <translation>画像の縦横が超えないピクセル数</translation>
    </message>
    <message>
        <source>Exit code: 0 done, 2 wrong arguments, 3 the file cannot be shown or the picture cannot be written.</source>
        <translation>終了コード: 0 完了、2 引数の誤り、3 ファイルを表示できないか、画像を書き込めない。</translation>
    </message>
    <message>
        <source>Only files of this computer can be read.</source>
        <translation>このコンピューターのファイルだけを読み込めます。</translation>
    </message>
    <message>
        <source>The project has no picture that can be read.</source>
        <translation>読み込めるピクチャーがプロジェクトにありません。</translation>
    </message>
    <message>
        <source>Reading it takes too much time or memory.</source>
        <translation>読み込みに時間またはメモリがかかりすぎます。</translation>
    </message>
</context>
<context>
    <name>FolderPick</name>
    <message>
        <source>Choose Folder</source>
        <translation>フォルダーの選択</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>&amp;Zoom</source>
        <translation>ズーム(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>描画(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>パレット(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>画像(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>エクスポート(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Bars</source>
        <translation>バー(&amp;B)</translation>
    </message>
    <message>
        <source>Recent Pro&amp;ject Files</source>
        <translation>最近使ったプロジェクト(&amp;J)</translation>
    </message>
    <message>
        <source>Recent I&amp;mage Files</source>
        <translation>最近使った画像(&amp;M)</translation>
    </message>
    <message>
        <source>Recent Pa&amp;lette Files</source>
        <translation>最近使ったパレット(&amp;L)</translation>
    </message>
    <message>
        <source>P&amp;icture</source>
        <translation>ピクチャー(&amp;I)</translation>
    </message>
    <message>
        <source>No&amp;de</source>
        <translation>ノード(&amp;D)</translation>
    </message>
    <message>
        <source>Pro&amp;ject</source>
        <translation>プロジェクト(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Entries</source>
        <translation>エントリ(&amp;E)</translation>
    </message>
    <message>
        <source>Brus&amp;h</source>
        <translation>ブラシ(&amp;H)</translation>
    </message>
    <message>
        <source>Arrange En&amp;tries</source>
        <translation>整理(&amp;T)</translation>
    </message>
    <message>
        <source>C&amp;hange Entries</source>
        <translation>エントリの変更(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Entry</source>
        <translation>エントリ(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Give a Palette</source>
        <translation>パレットを付ける(&amp;G)</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
</context>
<context>
    <name>Text</name>
    <message>
        <source>Orrery Dyeworks</source>
        <translation>Orrery Dyeworks</translation>
    </message>
    <message>
        <source>The file or its folder does not exist.</source>
        <translation>ファイルまたはフォルダーがありません。</translation>
    </message>
    <message>
        <source>You do not have permission to use it.</source>
        <translation>アクセスする権限がありません。</translation>
    </message>
    <message>
        <source>The name is that of a folder.</source>
        <translation>指定された名前はフォルダーのものです。</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>ディスクに空き容量がありません。</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <translation>ディスクは読み取り専用です。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>The file does not fit into memory.</source>
        <translation>ファイルが大きすぎてメモリーに入りません。</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>ディスクでエラーが発生しました。</translation>
    </message>
    <message>
        <source>Cannot save &quot;%1&quot;.
%2</source>
        <translation>「%1」を保存できません。
%2</translation>
    </message>
    <message>
        <source>Save changes to %1?</source>
        <translation>%1 への変更を保存しますか?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist.
Please check the name.</source>
        <translation>「%1」が見つかりません。
名前を確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already.
Do you want to replace it?</source>
        <translation>「%1」は既に存在します。
上書きしますか?</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>描画</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>No palette is open.</source>
        <translation>パレットが開かれていません。</translation>
    </message>
    <message>
        <source>Open palettes</source>
        <translation>開いているパレット</translation>
    </message>
    <message>
        <source>Palette colours</source>
        <translation>パレットの色</translation>
    </message>
    <message>
        <source>The 16 entries of the palette that the image is shown through</source>
        <translation>画像の表示に使うパレットの 16 色</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Version (Orrery Dyeworks)</source>
        <translation>バージョン情報 (Orrery Dyeworks)</translation>
    </message>
    <message>
        <source>Orrery Dyeworks Version</source>
        <translation>Orrery Dyeworks バージョン</translation>
    </message>
    <message>
        <source>Editor for colour-indexed console textures</source>
        <translation>ゲーム機用パレットテクスチャの編集ソフト</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規作成</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>テクスチャ</translation>
    </message>
    <message>
        <source>&amp;4bit (16colors)</source>
        <translation>&amp;4bit (16色)</translation>
    </message>
    <message>
        <source>&amp;8bit (256colors)</source>
        <translation>&amp;8bit (256色)</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>Width of the image in texels, 0 to 1024</source>
        <translation>画像の幅 (テクセル数、0 から 1024)</translation>
    </message>
    <message>
        <source>Height of the image in texels, 0 to 1024</source>
        <translation>画像の高さ (テクセル数、0 から 1024)</translation>
    </message>
    <message>
        <source>Each texel is one of the 16 colours of a palette bank</source>
        <translation>各テクセルはパレット バンクの 16 色のいずれかになります</translation>
    </message>
    <message>
        <source>Each texel is one of the 256 colours of a palette</source>
        <translation>各テクセルはパレットの 256 色のいずれかになります</translation>
    </message>
    <message>
        <source>Memory that the texels of the image take</source>
        <translation>画像のテクセルが占めるメモリの大きさ</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>文書を印刷できませんでした。</translation>
    </message>
    <message>
        <source>Printing page %1 of %2...</source>
        <translation>%2 ページ中 %1 ページ目を印刷しています...</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;.</source>
        <translation>「%1」を読み込めません。</translation>
    </message>
    <message>
        <source>Go back to the saved file?
The changes to &quot;%1&quot; will be lost.</source>
        <translation>保存されたファイルに戻しますか?
「%1」への変更は失われます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another window.</source>
        <translation>「%1」は別のウィンドウで開かれています。</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>変更(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Pictures of the project</source>
        <translation>プロジェクトのピクチャー</translation>
    </message>
    <message>
        <source>Open the chosen picture</source>
        <translation>選択したピクチャーを開く</translation>
    </message>
    <message>
        <source>Buttons for documents, undo and redo, the clipboard, printing and help. Drag the handle to move the bar to another side of the window.</source>
        <translation>ドキュメント、元に戻すとやり直し、クリップボード、印刷、ヘルプのボタンです。ハンドルをドラッグすると、バーをウィンドウの別の側へ移動できます。</translation>
    </message>
    <message>
        <source>Buttons for the palette bar, the grid and the previews. Drag the handle to move the bar to another side of the window.</source>
        <translation>パレット バー、グリッド、プレビューのボタンです。ハンドルをドラッグすると、バーをウィンドウの別の側へ移動できます。</translation>
    </message>
    <message>
        <source>The drawing tools. The chosen one draws with the colour that is selected in the palette bar. Drag the handle to move the bar to another side of the window.</source>
        <translation>描画ツールです。選択したツールは、パレット バーで選択した色で描画します。ハンドルをドラッグすると、バーをウィンドウの別の側へ移動できます。</translation>
    </message>
    <message>
        <source>The pictures of the open project. Choose one in the list; the button on the right opens it, the others change the list.</source>
        <translation>開いているプロジェクトのピクチャーです。一覧から選択し、右のボタンで開きます。ほかのボタンは一覧を変更します。</translation>
    </message>
    <message>
        <source>What the command under the pointer does.</source>
        <translation>ポインターの下にあるコマンドの説明です。</translation>
    </message>
    <message>
        <source>The texel under the pointer, counted from the top left corner, and the zoom.</source>
        <translation>ポインターの下にあるテクセルの位置 (左上から数えます) と表示倍率です。</translation>
    </message>
    <message>
        <source>Width, height and depth of the active image.</source>
        <translation>アクティブな画像の幅、高さ、ビット数です。</translation>
    </message>
    <message>
        <source>The windows of the open documents. Files that are dropped here are opened.</source>
        <translation>開いているドキュメントのウィンドウです。ここにドロップしたファイルが開きます。</translation>
    </message>
    <message>
        <source>The image. The chosen tool draws where you press and drag; the wheel with Ctrl changes the zoom.</source>
        <translation>画像です。選択したツールで、押したりドラッグしたりした所に描画します。Ctrl を押しながらホイールを回すと表示倍率が変わります。</translation>
    </message>
    <message>
        <source>OLE initialization failed.  Make sure that the OLE libraries are the correct version.</source>
        <translation>OLE の初期化に失敗しました。OLE のライブラリが正しいバージョンか確認してください。</translation>
    </message>
    <message>
        <source>Some documents failed to resume.</source>
        <translation>一部のドキュメントを開き直せませんでした。</translation>
    </message>
    <message>
        <source>can not open help. Please, check exist help file, and check browser installed.</source>
        <translation>ヘルプを開けません。ヘルプファイルがあるか、ブラウザーがインストールされているか確認してください。</translation>
    </message>
    <message>
        <source>RGBA Palette</source>
        <translation>RGBAパレット</translation>
    </message>
    <message>
        <source>IA Palette</source>
        <translation>IAパレット</translation>
    </message>
    <message>
        <source>&amp;R</source>
        <translation>&amp;R</translation>
    </message>
    <message>
        <source>&amp;G</source>
        <translation>&amp;G</translation>
    </message>
    <message>
        <source>&amp;B</source>
        <translation>&amp;B</translation>
    </message>
    <message>
        <source>&amp;A</source>
        <translation>&amp;A</translation>
    </message>
    <message>
        <source>&amp;I</source>
        <translation>&amp;I</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>アルファ</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>輝度</translation>
    </message>
    <message>
        <source>%1, 0 to %2</source>
        <translation>%1(0～%2)</translation>
    </message>
    <message>
        <source>%1 in hexadecimal</source>
        <translation>%1の16進数表示</translation>
    </message>
    <message>
        <source>Colour of the entry</source>
        <translation>エントリの色</translation>
    </message>
    <message>
        <source>Take this colour as the left end of the gradient</source>
        <translation>この色をグラデーションの左端にします</translation>
    </message>
    <message>
        <source>Take this colour as the right end of the gradient</source>
        <translation>この色をグラデーションの右端にします</translation>
    </message>
    <message>
        <source>Gradient step %1</source>
        <translation>グラデーションの%1段目</translation>
    </message>
    <message>
        <source>Palette is not open yet.</source>
        <translation>パレットはまだ開かれていません。</translation>
    </message>
    <message>
        <source>Please enter an integer between %1 and %2.</source>
        <translation>%1 から %2 までの整数を入力してください。</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>幅(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>高さ(&amp;H)</translation>
    </message>
    <message>
        <source>Bit mode</source>
        <translation>ビットモード</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>TPF &amp;Name</source>
        <translation>TPF 名(&amp;N)</translation>
    </message>
    <message>
        <source>TPF &amp;Dir</source>
        <translation>TPF フォルダー(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;TMF Dir</source>
        <translation>TMF フォルダー(&amp;T)</translation>
    </message>
    <message>
        <source>T&amp;LF Dir</source>
        <translation>TLF フォルダー(&amp;L)</translation>
    </message>
    <message>
        <source>Name of the project, and of its file</source>
        <translation>プロジェクトとそのファイルの名前</translation>
    </message>
    <message>
        <source>Folder that the project&apos;s file is in</source>
        <translation>プロジェクトファイルを置くフォルダー</translation>
    </message>
    <message>
        <source>Folder of the images; the project&apos;s own when nothing is entered</source>
        <translation>画像のフォルダー (空欄ならプロジェクトのフォルダー)</translation>
    </message>
    <message>
        <source>Folder of the palettes; the project&apos;s own when nothing is entered</source>
        <translation>パレットのフォルダー (空欄ならプロジェクトのフォルダー)</translation>
    </message>
    <message>
        <source>Choose the folder of the project</source>
        <translation>プロジェクトのフォルダーを選びます</translation>
    </message>
    <message>
        <source>Choose the folder of the images</source>
        <translation>画像のフォルダーを選びます</translation>
    </message>
    <message>
        <source>Choose the folder of the palettes</source>
        <translation>パレットのフォルダーを選びます</translation>
    </message>
    <message>
        <source>Folders can only be typed, because FolderPick.ocx is not found</source>
        <translation>FolderPick.ocx が見つからないため、フォルダーは文字でしか入力できません</translation>
    </message>
    <message>
        <source>Project Property</source>
        <translation>プロジェクトのプロパティ</translation>
    </message>
    <message>
        <source>&amp;8bit (256Colors)</source>
        <translation>&amp;8bit (256色)</translation>
    </message>
    <message>
        <source>A palette of 16 entries</source>
        <translation>16 色のパレット</translation>
    </message>
    <message>
        <source>A palette of 256 entries</source>
        <translation>256 色のパレット</translation>
    </message>
    <message>
        <source>Colour type</source>
        <translation>カラータイプ</translation>
    </message>
    <message>
        <source>16bit &amp;RGBA</source>
        <translation>16bit &amp;RGBA</translation>
    </message>
    <message>
        <source>16bit &amp;IA</source>
        <translation>16bit &amp;IA</translation>
    </message>
    <message>
        <source>Red, green and blue of 5 bits each, alpha of 1 bit</source>
        <translation>赤・緑・青が各 5 ビット、アルファが 1 ビット</translation>
    </message>
    <message>
        <source>Intensity and alpha of 8 bits each</source>
        <translation>輝度とアルファが各 8 ビット</translation>
    </message>
    <message>
        <source>Default &amp;Alpha</source>
        <translation>アルファの初期値(&amp;A)</translation>
    </message>
    <message>
        <source>Alpha that all entries begin with, 0 to %1</source>
        <translation>すべての色のアルファの初期値 (0 から %1)</translation>
    </message>
    <message>
        <source>Size of the palette&apos;s file</source>
        <translation>パレットファイルの大きさ</translation>
    </message>
    <message>
        <source>Options Setting Dialog</source>
        <translation>オプションの設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>&amp;When TMF was created, ask about using the project.</source>
        <translation>TMF を作成したとき、プロジェクトを使うかどうかを確認する(&amp;W)</translation>
    </message>
    <message>
        <source>Whether a new image brings the question about using a project, while none is open</source>
        <translation>プロジェクトが開いていないとき、新しい画像を作るとプロジェクトを使うかどうかを尋ねます</translation>
    </message>
    <message>
        <source>Do you use project?</source>
        <translation>プロジェクトを使いますか?</translation>
    </message>
    <message>
        <source>You can add the pair of TMF(Image)+TLF(Palette) as picture to the project.
Do you use project?</source>
        <translation>TMF (画像) と TLF (パレット) の組を、ピクチャーとしてプロジェクトに追加できます。
プロジェクトを使いますか?</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>No&amp;tify next time</source>
        <translation>次回も確認する(&amp;T)</translation>
    </message>
    <message>
        <source>Make a new project</source>
        <translation>新しいプロジェクトを作ります</translation>
    </message>
    <message>
        <source>Open a project from its file</source>
        <translation>プロジェクトファイルを開きます</translation>
    </message>
    <message>
        <source>Go on without a project</source>
        <translation>プロジェクトを使わずに続けます</translation>
    </message>
    <message>
        <source>Ask again when the next image has been made</source>
        <translation>次に画像を作ったときも確認します</translation>
    </message>
    <message>
        <source>Ban&amp;k</source>
        <translation>バンク(&amp;K)</translation>
    </message>
    <message>
        <source>The open palettes and the colours of the current one. Click the colour to draw with; change it with the bars, the numbers or the entry in hexadecimal, then press Apply.</source>
        <translation>開いているパレットと、現在のパレットの色です。描画に使う色をクリックします。色はバー、数値または16進のエントリで変更し、[適用] を押します。</translation>
    </message>
    <message>
        <source>&amp;RGB</source>
        <translation>&amp;RGB</translation>
    </message>
    <message>
        <source>&amp;Alpha</source>
        <translation>アルファ(&amp;A)</translation>
    </message>
    <message>
        <source>Show the colours, here and in the images</source>
        <translation>ここと画像に色を表示します</translation>
    </message>
    <message>
        <source>Show the alpha plane, here and in the images</source>
        <translation>ここと画像にアルファ面を表示します</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Show the entry in the images while it is edited</source>
        <translation>編集中のエントリを画像に表示します</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Write the edited entry into the palette</source>
        <translation>編集したエントリをパレットに書き込みます</translation>
    </message>
    <message>
        <source>Number of the current entry</source>
        <translation>現在のエントリの番号</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>エントリ</translation>
    </message>
    <message>
        <source>The edited entry in hexadecimal</source>
        <translation>編集中のエントリ (16進)</translation>
    </message>
    <message>
        <source>Please enter one to four hexadecimal digits.</source>
        <translation>1～4桁の16進数を入力してください。</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>グラデーション</translation>
    </message>
    <message>
        <source>Project already opened.
(You can use only one Project.)
Do you close it?
</source>
        <translation>プロジェクトは既に開かれています。
（使用できるプロジェクトは一つだけです。）
閉じますか？
</translation>
    </message>
    <message>
        <source>Incorrect parameter.</source>
        <translation>指定が正しくありません。</translation>
    </message>
    <message>
        <source>Please specify new file name.</source>
        <translation>新しいファイル名を指定してください。</translation>
    </message>
    <message>
        <source>File name has already existed.
Please give unique name.</source>
        <translation>そのファイル名は既に存在します。
別の名前を付けてください。</translation>
    </message>
    <message>
        <source>%1 is not found.
Do you ignore error to continue?</source>
        <translation>%1 が見つかりません。
無視して続けますか？</translation>
    </message>
    <message>
        <source>%1 file already exists.
Over write?</source>
        <translation>%1 は既に存在します。
上書きしますか？</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;.
%2</source>
        <translation>「%1」を開けません。
%2</translation>
    </message>
    <message>
        <source>Cannot save the project as &quot;%1&quot;.</source>
        <translation>プロジェクトを「%1」に保存できません。</translation>
    </message>
    <message>
        <source>A project cannot keep the folder &quot;%1&quot;: its path is too long or has a &quot;#&quot; in it.</source>
        <translation>プロジェクトはフォルダー「%1」を記録できません。パスが長すぎるか「#」を含んでいます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>A picture needs a name, which begins with no blank and has none of , # = \ and $( in it.</source>
        <translation>ピクチャーには名前が必要です。空白で始まる名前や、, # = \ $( を含む名前は使えません。</translation>
    </message>
    <message>
        <source>A project cannot keep the file name &quot;%1&quot;: it has one of , # and $( in it.</source>
        <translation>プロジェクトはファイル名「%1」を記録できません。, # $( のどれかを含んでいます。</translation>
    </message>
    <message>
        <source>The names of the picture and of its files are too long together.</source>
        <translation>ピクチャーの名前とファイル名を合わせた長さが長すぎます。</translation>
    </message>
    <message>
        <source>There is a picture &quot;%1&quot; already.
Do you want to replace it?</source>
        <translation>ピクチャー「%1」は既にあります。
置き換えますか？</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>ピクチャー</translation>
    </message>
    <message>
        <source>Picture &amp;name</source>
        <translation>ピクチャー名(&amp;N)</translation>
    </message>
    <message>
        <source>Texture (TMF)</source>
        <translation>テクスチャ (TMF)</translation>
    </message>
    <message>
        <source>Palette (TLF)</source>
        <translation>パレット (TLF)</translation>
    </message>
    <message>
        <source>Palette N&amp;o.</source>
        <translation>パレット番号(&amp;O)</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>新規...</translation>
    </message>
    <message>
        <source>What the picture is called in the project</source>
        <translation>プロジェクトでのピクチャーの名前</translation>
    </message>
    <message>
        <source>A file in the project&apos;s image folder, or one with a folder of its own</source>
        <translation>プロジェクトの画像フォルダーのファイル、またはフォルダーを付けたファイル名</translation>
    </message>
    <message>
        <source>A file in the project&apos;s palette folder, or one with a folder of its own</source>
        <translation>プロジェクトのパレットフォルダーのファイル、またはフォルダーを付けたファイル名</translation>
    </message>
    <message>
        <source>The 16 entries of a large palette that a 4-bit image is shown through, 0 to 15</source>
        <translation>4bit画像の表示に使う、大きなパレットの16色の番号（0～15）</translation>
    </message>
    <message>
        <source>Choose an image file</source>
        <translation>画像ファイルを選ぶ</translation>
    </message>
    <message>
        <source>Choose a palette file</source>
        <translation>パレットファイルを選ぶ</translation>
    </message>
    <message>
        <source>Make a new image file of this name</source>
        <translation>この名前で新しい画像ファイルを作る</translation>
    </message>
    <message>
        <source>Make a new palette file of this name</source>
        <translation>この名前で新しいパレットファイルを作る</translation>
    </message>
    <message>
        <source>The image in the colours of the palette</source>
        <translation>パレットの色で表示した画像</translation>
    </message>
    <message>
        <source>The project and its pictures, each an image with a palette. Double-click a picture to open it; drag it to another place, with Ctrl for a copy.</source>
        <translation>プロジェクトと、そのピクチャー（画像とパレットの組）です。ダブルクリックで開きます。ドラッグで移動し、Ctrlを押しながらドラッグすると複製します。</translation>
    </message>
    <message>
        <source>The plug-in %1 failed.</source>
        <translation>プラグイン %1 でエラーが起きました。</translation>
    </message>
    <message>
        <source>PlugIns</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>The folder of the plug-ins, which the program reads when it starts</source>
        <translation>プラグインのフォルダー（起動時に読み込まれます）</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>会社</translation>
    </message>
    <message>
        <source>The plug-ins that are loaded</source>
        <translation>読み込まれているプラグイン</translation>
    </message>
    <message>
        <source>The file is not a bitmap, or one of an unknown kind.</source>
        <translation>ビットマップではないか、未知の種類のビットマップです。</translation>
    </message>
    <message>
        <source>The file is damaged or ends before the bitmap does.</source>
        <translation>ファイルが壊れているか、途中で終わっています。</translation>
    </message>
    <message>
        <source>The width or height of the bitmap is out of range.</source>
        <translation>ビットマップの幅または高さが範囲外です。</translation>
    </message>
    <message>
        <source>A TMF image has 4 or 8 bits for each texel, and this one has %1.
Give it a name that ends in .bmp.</source>
        <translation>TMF 画像は 1 テクセルが 4 ビットか 8 ビットですが、この画像は %1 ビットです。
.bmp で終わる名前を付けてください。</translation>
    </message>
    <message>
        <source>Bitmap Files</source>
        <translation>ビットマップ ファイル</translation>
    </message>
    <message>
        <source>Import BMP</source>
        <translation>BMP のインポート</translation>
    </message>
    <message>
        <source>Export BMP</source>
        <translation>BMP のエクスポート</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.
The program does not know what folder drive %2 stands for. Start it once with
--drive %2=FOLDER</source>
        <translation>「%1」が見つかりません。
ドライブ%2がどのフォルダーにあたるのか分かりません。一度
--drive %2=フォルダー
を付けて起動してください。</translation>
    </message>
    <message>
        <source>It has unsaved changes.</source>
        <translation>保存していない変更があります。</translation>
    </message>
    <message>
        <source>%1, unsaved changes</source>
        <translation>%1、保存していない変更あり</translation>
    </message>
    <message>
        <source>Please save the palette that is added to the project.</source>
        <translation>プロジェクトに追加するパレットを保存してください。</translation>
    </message>
    <message>
        <source>There is not enough memory to undo this later.
Do you want to do it all the same?</source>
        <translation>この操作は、メモリが足りないため、あとで元に戻せません。
それでも実行しますか?</translation>
    </message>
    <message>
        <source>There is not enough memory for this.</source>
        <translation>メモリが足りないため、実行できません。</translation>
    </message>
    <message>
        <source>The selection cannot be put on the clipboard.</source>
        <translation>選択範囲をクリップボードに入れられません。</translation>
    </message>
    <message>
        <source>The bitmap on the clipboard cannot be pasted.</source>
        <translation>クリップボードのビットマップを貼り付けられません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (TLF) is modified. save now?</source>
        <translation>「%1」(TLF) は変更されています。保存しますか？</translation>
    </message>
    <message>
        <source>%1 open failed</source>
        <translation>%1 を開けません。</translation>
    </message>
    <message>
        <source>Could not allocate buffer for UNDO information.
Do you clear all UNDO buffer?</source>
        <translation>元に戻すためのメモリが足りません。
元に戻すための記録をすべて消去しますか？</translation>
    </message>
    <message>
        <source>[%1] file open failed.
</source>
        <translation>[%1] ファイルを開けません。
</translation>
    </message>
    <message>
        <source>[%1] incorrect header size.
</source>
        <translation>[%1] ヘッダーの大きさが正しくありません。
</translation>
    </message>
    <message>
        <source>[%1] incorrect header information.
</source>
        <translation>[%1] ヘッダーの内容が正しくありません。
</translation>
    </message>
    <message>
        <source>[%1] create failed.
</source>
        <translation>[%1] パレットを作成できません。
</translation>
    </message>
    <message>
        <source>[%1] incorrect body size.
</source>
        <translation>[%1] データの大きさが正しくありません。
</translation>
    </message>
    <message>
        <source>Illegal color number = %1.
</source>
        <translation>色数が正しくありません (%1)。
</translation>
    </message>
    <message>
        <source>TextureLookupTable::create(%1, %2) ... failed.
</source>
        <translation>パレットを作成できません (色数 %1、種類 %2)。
</translation>
    </message>
    <message>
        <source>TextureLookupTable::newLogPalette() ... !!!Error!!!
</source>
        <translation>表示用のパレットを作成できません。
</translation>
    </message>
    <message>
        <source>[%1] file read failed.
</source>
        <translation>[%1] ファイルを読み込めません。
</translation>
    </message>
    <message>
        <source>improper tag=0x%1, bits=%2
</source>
        <translation>タグが正しくありません (タグ 0x%1、ビット数 %2)。
</translation>
    </message>
    <message>
        <source>not enough memory for create TMF.
</source>
        <translation>メモリが足りないため、TMF を作成できません。
</translation>
    </message>
    <message>
        <source>compressed format not supported.
</source>
        <translation>圧縮形式には対応していません。
</translation>
    </message>
    <message>
        <source>Project is not open yet.</source>
        <translation>プロジェクトはまだ開かれていません。</translation>
    </message>
    <message>
        <source>(no picture)</source>
        <translation>(ピクチャーなし)</translation>
    </message>
    <message>
        <source>%1 is not found.</source>
        <translation>%1 が見つかりません。</translation>
    </message>
    <message>
        <source>%1 is not found</source>
        <translation>%1 が見つかりません。</translation>
    </message>
    <message>
        <source>Do you close all pictures?</source>
        <translation>すべてのピクチャーを閉じますか？</translation>
    </message>
    <message>
        <source>%1is
not exist directory.</source>
        <translation>%1
というフォルダーはありません。</translation>
    </message>
    <message>
        <source>and,
</source>
        <translation>、
</translation>
    </message>
    <message>
        <source>Please save document that adds to project.</source>
        <translation>プロジェクトに追加する画像を保存してください。</translation>
    </message>
    <message>
        <source>not add to project.</source>
        <translation>プロジェクトに追加されませんでした。</translation>
    </message>
    <message>
        <source>You must attach a palette before add to project.
attach to active palette now?
</source>
        <translation>プロジェクトに追加する前に、パレットを割り当てる必要があります。
現在のパレットを割り当てますか？
</translation>
    </message>
    <message>
        <source>An active palette not found.
You must open or create a palette.
</source>
        <translation>現在のパレットがありません。
パレットを開くか、新しく作成してください。
</translation>
    </message>
    <message>
        <source>TMF Import Plug-In not installed.
</source>
        <translation>TMF のインポート プラグインがありません。
</translation>
    </message>
    <message>
        <source>TMF import entry not found</source>
        <translation>TMF のインポート機能が見つかりません。</translation>
    </message>
    <message>
        <source>TMF Export Plug-In not installed.
</source>
        <translation>TMF のエクスポート プラグインがありません。
</translation>
    </message>
    <message>
        <source>TMF export entry not found.</source>
        <translation>TMF のエクスポート機能が見つかりません。</translation>
    </message>
    <message>
        <source>TMF Preview Plug-In not installed.
</source>
        <translation>TMF のプレビュー プラグインがありません。
</translation>
    </message>
    <message>
        <source>TMF preview entry not found</source>
        <translation>TMF のプレビュー機能が見つかりません。</translation>
    </message>
    <message>
        <source>TPF Export Plug-In not installed.
</source>
        <translation>TPF のエクスポート プラグインがありません。
</translation>
    </message>
    <message>
        <source>TPF export entry not found.</source>
        <translation>TPF のエクスポート機能が見つかりません。</translation>
    </message>
    <message>
        <source>The file is of no kind that can be read here.</source>
        <translation>ここで読み込める種類のファイルではありません。</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>ファイルが壊れています。</translation>
    </message>
    <message>
        <source>The file is damaged (%3).</source>
        <translation>ファイルが壊れています (%3)。</translation>
    </message>
    <message>
        <source>It is too large: %1 x %2 pixels.</source>
        <translation>大きすぎます: %1 x %2 ピクセル。</translation>
    </message>
    <message>
        <source>The file holds no colours.</source>
        <translation>ファイルに色がありません。</translation>
    </message>
    <message>
        <source>There are more than %1 colours.</source>
        <translation>色が %1 色を超えています。</translation>
    </message>
    <message>
        <source>Line %1 is not understood: %3</source>
        <translation>%1 行目を読み取れません: %3</translation>
    </message>
    <message>
        <source>The file is damaged (a pixel has the colour %1 of %2).</source>
        <translation>ファイルが壊れています (%2 色のうち %1 番の色を使うピクセルがあります)。</translation>
    </message>
    <message>
        <source>Its pixels use colours up to number %1; the image has numbers up to %2.</source>
        <translation>%1 番までの色を使っていますが、画像の番号は %2 までです。</translation>
    </message>
    <message>
        <source>The image has no texels of 4 or 8 bits.</source>
        <translation>4 ビットまたは 8 ビットのテクセルがありません。</translation>
    </message>
    <message>
        <source>It was stopped.</source>
        <translation>中止しました。</translation>
    </message>
    <message>
        <source>Reading the picture...</source>
        <translation>絵を読み込んでいます...</translation>
    </message>
    <message>
        <source>Matching the colours...</source>
        <translation>色を合わせています...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open as a new image. Colours rounded: %2, entries changed by other programs: %3.</source>
        <translation>&quot;%1&quot; を新しい画像として開きました。丸めた色: %2、ほかのプログラムが変えたエントリ: %3</translation>
    </message>
    <message>
        <source>Pasted</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>The pasted colours are not those of the image: they will change when the piece is placed. Paste Matching Colours finds the nearest ones.</source>
        <translation>貼り付けた色は画像の色と違い、置くと変わります。「色を合わせて貼り付け」なら最も近い色になります。</translation>
    </message>
    <message>
        <source>Import Palette</source>
        <translation>パレットのインポート</translation>
    </message>
    <message>
        <source>Colours in the file: %1</source>
        <translation>ファイルの色の数: %1</translation>
    </message>
    <message>
        <source>As a &amp;new palette</source>
        <translation>新しいパレットにする(&amp;N)</translation>
    </message>
    <message>
        <source>A palette of 16 or 256 entries, whichever holds the colours</source>
        <translation>色が収まる 16 または 256 エントリのパレット</translation>
    </message>
    <message>
        <source>&amp;Into the current palette from entry</source>
        <translation>現在のパレットに入れる、最初のエントリ(&amp;I)</translation>
    </message>
    <message>
        <source>Replace entries of the current palette; Undo takes it back in one step</source>
        <translation>現在のパレットのエントリを置き換えます。一度の操作で元に戻せます</translation>
    </message>
    <message>
        <source>Entry of the current palette that takes the first colour</source>
        <translation>最初の色を入れる現在のパレットのエントリ</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <translation>パレットのエクスポート</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>形式(&amp;F)</translation>
    </message>
    <message>
        <source>Kind of file; a name with the ending of another kind makes that</source>
        <translation>ファイルの種類。別の種類の拡張子を付けた名前ならその種類になります</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>エントリ</translation>
    </message>
    <message>
        <source>&amp;All %1 entries</source>
        <translation>%1 エントリすべて(&amp;A)</translation>
    </message>
    <message>
        <source>Write the whole palette</source>
        <translation>パレット全体を書きます</translation>
    </message>
    <message>
        <source>Only &amp;bank %1, entries %2 to %3</source>
        <translation>バンク %1 だけ、エントリ %2～%3(&amp;B)</translation>
    </message>
    <message>
        <source>Write the bank that the palette bar shows</source>
        <translation>パレット バーに表示しているバンクを書きます</translation>
    </message>
    <message>
        <source>GIMP palette</source>
        <translation>GIMP パレット</translation>
    </message>
    <message>
        <source>JASC palette</source>
        <translation>JASC パレット</translation>
    </message>
    <message>
        <source>Adobe colour table</source>
        <translation>Adobe カラー テーブル</translation>
    </message>
    <message>
        <source>Hexadecimal colours</source>
        <translation>16 進の色</translation>
    </message>
    <message>
        <source>PNG of indexed colours</source>
        <translation>インデックス カラーの PNG</translation>
    </message>
    <message>
        <source>Palette files of other programs</source>
        <translation>ほかのプログラムのパレット ファイル</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Reduce Colours</source>
        <translation>減色</translation>
    </message>
    <message>
        <source>Reduce Colours - %1</source>
        <translation>減色 - %1</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>元の絵</translation>
    </message>
    <message>
        <source>After</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>De&amp;pth</source>
        <translation>ビット数(&amp;P)</translation>
    </message>
    <message>
        <source>4 bits</source>
        <translation>4 ビット</translation>
    </message>
    <message>
        <source>8 bits</source>
        <translation>8 ビット</translation>
    </message>
    <message>
        <source>Of each texel: 4 bits for 16 colours, 8 bits for 256</source>
        <translation>テクセルのビット数。4 ビットは 16 色、8 ビットは 256 色</translation>
    </message>
    <message>
        <source>Pa&amp;lette</source>
        <translation>パレット(&amp;L)</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>現在のもの</translation>
    </message>
    <message>
        <source>Bank of current</source>
        <translation>現在のバンク</translation>
    </message>
    <message>
        <source>The colours that the image is made of: a new palette, the current one, or one bank of it</source>
        <translation>画像に使う色。新しいパレット、現在のパレット、またはその一つのバンク</translation>
    </message>
    <message>
        <source>The 16 entries of the current palette that the image is made of, 0 to 15</source>
        <translation>画像に使う現在のパレットの 16 エントリ、0～15</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>色数(&amp;C)</translation>
    </message>
    <message>
        <source>Most colours that the new palette may have</source>
        <translation>新しいパレットの色数の上限</translation>
    </message>
    <message>
        <source>&amp;Type</source>
        <translation>種類(&amp;T)</translation>
    </message>
    <message>
        <source>RGBA</source>
        <translation>RGBA</translation>
    </message>
    <message>
        <source>IA</source>
        <translation>IA</translation>
    </message>
    <message>
        <source>Colour type of the new palette</source>
        <translation>新しいパレットの種類</translation>
    </message>
    <message>
        <source>Keep &amp;entries</source>
        <translation>残す番号(&amp;E)</translation>
    </message>
    <message>
        <source>Entries of the current palette that the new one has at the same place, as in 0, 4-7</source>
        <translation>新しいパレットの同じ番号に残す、現在のパレットのエントリ。例: 0, 4-7</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Entries to keep are written as in 0, 4-7, below the number of colours.</source>
        <translation>残す番号は「0, 4-7」のように、色数より小さい数で書きます。</translation>
    </message>
    <message>
        <source>&amp;Alpha from</source>
        <translation>不透明の下限(&amp;A)</translation>
    </message>
    <message>
        <source>Pixels of less alpha become transparent, 0 to 256</source>
        <translation>アルファがこれより小さいピクセルは透明になります、0～256</translation>
    </message>
    <message>
        <source>&amp;Dither</source>
        <translation>ディザ(&amp;D)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation>組織的</translation>
    </message>
    <message>
        <source>Error diffusion</source>
        <translation>誤差拡散</translation>
    </message>
    <message>
        <source>How colours that are missing are mixed of others</source>
        <translation>足りない色をほかの色で表す方法</translation>
    </message>
    <message>
        <source>Actual &amp;size</source>
        <translation>等倍(&amp;S)</translation>
    </message>
    <message>
        <source>Show one pixel of the picture for one of the screen</source>
        <translation>絵の 1 ピクセルを画面の 1 ピクセルで表示します</translation>
    </message>
    <message>
        <source>Colours: %1, mean error: %2</source>
        <translation>色数: %1、平均誤差: %2</translation>
    </message>
    <message>
        <source>Resize Canvas</source>
        <translation>キャンバスのサイズ変更</translation>
    </message>
    <message>
        <source>Scale Image</source>
        <translation>画像の拡大・縮小</translation>
    </message>
    <message>
        <source>Shift Image</source>
        <translation>画像をずらす</translation>
    </message>
    <message>
        <source>To 4 Bits</source>
        <translation>4 ビットに変換</translation>
    </message>
    <message>
        <source>Width of the result in texels, 1 to 65536</source>
        <translation>結果の幅 (テクセル数、1 から 65536)</translation>
    </message>
    <message>
        <source>Height of the result in texels, 1 to 65536</source>
        <translation>結果の高さ (テクセル数、1 から 65536)</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Memory that the image will take</source>
        <translation>画像が使うことになるメモリ</translation>
    </message>
    <message>
        <source>More than an image can take (1 GiB)</source>
        <translation>画像の上限 (1 GiB) を超えます</translation>
    </message>
    <message>
        <source>The image stays</source>
        <translation>画像の位置</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>&amp;Fill with</source>
        <translation>塗りつぶし(&amp;F)</translation>
    </message>
    <message>
        <source>Index of the texels that are added, 0 to %1</source>
        <translation>加わるテクセルのインデックス (0 から %1)</translation>
    </message>
    <message>
        <source>&amp;Multiple</source>
        <translation>倍率(&amp;M)</translation>
    </message>
    <message>
        <source>Whole multiples, which keep every texel alike, or any size</source>
        <translation>すべてのテクセルが揃う整数倍、または任意のサイズ</translation>
    </message>
    <message>
        <source>Any size</source>
        <translation>任意のサイズ</translation>
    </message>
    <message>
        <source>Keep the &amp;ratio</source>
        <translation>縦横比を保つ(&amp;R)</translation>
    </message>
    <message>
        <source>Width and height follow each other</source>
        <translation>幅と高さが連動します</translation>
    </message>
    <message>
        <source>To the &amp;right</source>
        <translation>右へ(&amp;R)</translation>
    </message>
    <message>
        <source>Texels to the right; negative ones to the left</source>
        <translation>右へのテクセル数。負の数は左へ</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message>
        <source>Texels down; negative ones up</source>
        <translation>下へのテクセル数。負の数は上へ</translation>
    </message>
    <message>
        <source>&amp;Bank</source>
        <translation>バンク(&amp;B)</translation>
    </message>
    <message>
        <source>Bank of the palette whose colours the image keeps</source>
        <translation>画像がそのまま使うパレットのバンク</translation>
    </message>
    <message>
        <source>%1 of %2 texels have other colours than this bank.
They can take the nearest of its colours, or the image stays as it is.</source>
        <translation>テクセル %2 個のうち %1 個はこのバンクにない色です。
このバンクで最も近い色にするか、画像をそのままにします。</translation>
    </message>
    <message>
        <source>&amp;Nearest Colour</source>
        <translation>最も近い色(&amp;N)</translation>
    </message>
    <message>
        <source>Give those texels the nearest colour of the bank</source>
        <translation>それらのテクセルをバンクの最も近い色にします</translation>
    </message>
    <message>
        <source>Leave It</source>
        <translation>そのまま</translation>
    </message>
    <message>
        <source>Leave the image as it is</source>
        <translation>画像をそのままにします</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>ブラシ</translation>
    </message>
    <message>
        <source>Brush size</source>
        <translation>ブラシの大きさ</translation>
    </message>
    <message>
        <source>Texels from side to side of the brush, 1 to 16; [ and ] change it too</source>
        <translation>ブラシの端から端までのテクセル数、1～16。[ と ] でも変わります</translation>
    </message>
    <message>
        <source>How the drawing tools draw: size and shape of the brush, mirrored on both sides of the middle, around the edges. Drag the handle to move the bar to another side of the window.</source>
        <translation>描画ツールの描き方です。ブラシの大きさと形、中央の両側への対称描画、端での回り込みを選びます。ハンドルをドラッグすると、バーをウィンドウの別の辺に移せます。</translation>
    </message>
    <message>
        <source>Progress of the reduction</source>
        <translation>減色の進み具合</translation>
    </message>
    <message>
        <source>Unsaved Work</source>
        <translation>未保存の作業</translation>
    </message>
    <message>
        <source>Orrery Dyeworks ended without being able to save. This is what it had kept of the work until then. What you recover is opened as changed and touches no file before you save it.</source>
        <translation>Orrery Dyeworks は保存できないまま終了しました。それまでに控えてあった作業の一覧です。復元したものは変更ありとして開かれ、保存するまでどのファイルにも触れません。</translation>
    </message>
    <message>
        <source>(not saved yet)</source>
        <translation>(まだ保存されていません)</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>控えた日時</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>Open what is ticked as it was</source>
        <translation>選んだものを控えたときの状態で開きます</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>破棄(&amp;D)</translation>
    </message>
    <message>
        <source>Remove what is ticked for ever</source>
        <translation>選んだものを完全に取り除きます</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>後で(&amp;L)</translation>
    </message>
    <message>
        <source>Leave it as it is and ask again at the next start</source>
        <translation>そのまま残し、次の起動時にもう一度たずねます</translation>
    </message>
    <message>
        <source>Remove unsaved work for ever? Number of documents: %1</source>
        <translation>未保存の作業を完全に取り除きますか? 文書の数: %1</translation>
    </message>
    <message>
        <source>Could not be recovered, and stays kept:%1</source>
        <translation>復元できませんでした。控えは残しておきます:%1</translation>
    </message>
    <message>
        <source>This step changed several documents together.</source>
        <translation>この操作は複数の文書をまとめて変更しました。</translation>
    </message>
    <message>
        <source>This step changes several documents together.</source>
        <translation>この操作は複数の文書をまとめて変更します。</translation>
    </message>
    <message>
        <source>No longer part of it, and left as they are, because they were closed or their history has dropped the step:%1</source>
        <translation>閉じられたか、履歴にこの操作が残っていないため、次の文書は今のままになります:%1</translation>
    </message>
    <message>
        <source>There are later steps in:%1</source>
        <translation>次の文書には、その後の操作があります:%1</translation>
    </message>
    <message>
        <source>Earlier steps have been taken back in:%1</source>
        <translation>次の文書では、それより前の操作が取り消されています:%1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Do you want to take those back, too?</source>
        <translation>それらも取り消しますか?</translation>
    </message>
    <message>
        <source>Do you want to do those again, too?</source>
        <translation>それらもやり直しますか?</translation>
    </message>
    <message>
        <source>Do you want to take it back in the others?</source>
        <translation>残りの文書で取り消しますか?</translation>
    </message>
    <message>
        <source>Do you want to do it again in the others?</source>
        <translation>残りの文書でやり直しますか?</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>No rule is set.</source>
        <translation>ルールは設定されていません。</translation>
    </message>
    <message>
        <source>Nothing breaks a rule.</source>
        <translation>ルールに反するものはありません。</translation>
    </message>
    <message>
        <source>R&amp;ules...</source>
        <translation>ルール(&amp;U)...</translation>
    </message>
    <message>
        <source>Set the rules of the open project, or those of all other images</source>
        <translation>開いているプロジェクトのルール、またはほかのすべての画像のルールを設定します</translation>
    </message>
    <message>
        <source>Largest size</source>
        <translation>最大の大きさ</translation>
    </message>
    <message>
        <source>Powers of two</source>
        <translation>2 のべき乗</translation>
    </message>
    <message>
        <source>Bytes of the texels</source>
        <translation>テクセルのバイト数</translation>
    </message>
    <message>
        <source>Bytes with the colours</source>
        <translation>色を含むバイト数</translation>
    </message>
    <message>
        <source>Colours of a block</source>
        <translation>ブロックの色数</translation>
    </message>
    <message>
        <source>First entry transparent</source>
        <translation>先頭のエントリが透明</translation>
    </message>
    <message>
        <source>Indexes inside the palette</source>
        <translation>インデックスがパレット内</translation>
    </message>
    <message>
        <source>Alpha only 0 or full</source>
        <translation>アルファは 0 か最大のみ</translation>
    </message>
    <message>
        <source>Whole image</source>
        <translation>画像全体</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>エントリ %1</translation>
    </message>
    <message>
        <source>Texel %1, %2</source>
        <translation>テクセル %1, %2</translation>
    </message>
    <message>
        <source>Texels %1, %2 to %3, %4</source>
        <translation>テクセル %1, %2 ～ %3, %4</translation>
    </message>
    <message>
        <source>%1 by %2 texels, at most %3 by %4</source>
        <translation>%1 × %2 テクセル (最大 %3 × %4)</translation>
    </message>
    <message>
        <source>%1 by %2 texels</source>
        <translation>%1 × %2 テクセル</translation>
    </message>
    <message>
        <source>%1 bytes, at most %2</source>
        <translation>%1 バイト (最大 %2)</translation>
    </message>
    <message>
        <source>%1 colours, at most %2</source>
        <translation>%1 色 (最大 %2)</translation>
    </message>
    <message>
        <source>Its alpha is %1, not 0</source>
        <translation>アルファが 0 ではなく %1 です</translation>
    </message>
    <message>
        <source>%2 texels have index %1, the palette has %3 entries</source>
        <translation>%2 テクセルのインデックスが %1 ですが、パレットは %3 エントリです</translation>
    </message>
    <message>
        <source>Has index %1, the palette has %2 entries</source>
        <translation>インデックスが %1 ですが、パレットは %2 エントリです</translation>
    </message>
    <message>
        <source>Its alpha is %1, neither 0 nor 255</source>
        <translation>アルファが 0 でも 255 でもなく %1 です</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>Rules of the Project</source>
        <translation>プロジェクトのルール</translation>
    </message>
    <message>
        <source>What images must keep to that are no pictures of the open project.</source>
        <translation>開いているプロジェクトのピクチャーではない画像が守るルールです。</translation>
    </message>
    <message>
        <source>&amp;Largest size</source>
        <translation>最大の大きさ(&amp;L)</translation>
    </message>
    <message>
        <source>Neither side of the image is longer.</source>
        <translation>画像のどちらの辺もこれより長くありません。</translation>
    </message>
    <message>
        <source>&amp;Powers of two</source>
        <translation>2 のべき乗(&amp;P)</translation>
    </message>
    <message>
        <source>Width and height are each 1, 2, 4, 8, 16 and so on.</source>
        <translation>幅も高さも 1、2、4、8、16 などです。</translation>
    </message>
    <message>
        <source>&amp;Bytes of the texels</source>
        <translation>テクセルのバイト数(&amp;B)</translation>
    </message>
    <message>
        <source>No more than these in the image&apos;s file, without its header.</source>
        <translation>画像ファイルのヘッダーを除いた部分がこれを超えません。</translation>
    </message>
    <message>
        <source>Bytes &amp;with the colours</source>
        <translation>色を含むバイト数(&amp;W)</translation>
    </message>
    <message>
        <source>The same and two bytes an entry: the 16 of the bank, or, at 8 bits, the whole palette.</source>
        <translation>上に、エントリごとの 2 バイトを加えます。バンクの 16 個、8 ビットではパレット全体です。</translation>
    </message>
    <message>
        <source>&amp;Colours of a block</source>
        <translation>ブロックの色数(&amp;C)</translation>
    </message>
    <message>
        <source>No more different indexes in any block of that many texels by that many.</source>
        <translation>この大きさのどのブロックでも、異なるインデックスはこの数以下です。</translation>
    </message>
    <message>
        <source>First entry &amp;transparent</source>
        <translation>先頭のエントリが透明(&amp;T)</translation>
    </message>
    <message>
        <source>The entry of index 0, at 4 bits the first of the bank, has alpha 0.</source>
        <translation>インデックス 0 のエントリ (4 ビットではバンクの先頭) のアルファが 0 です。</translation>
    </message>
    <message>
        <source>&amp;Indexes inside the palette</source>
        <translation>インデックスがパレット内(&amp;I)</translation>
    </message>
    <message>
        <source>Every texel&apos;s entry exists; at 4 bits it is counted from the first of the bank.</source>
        <translation>どのテクセルのエントリも存在します。4 ビットではバンクの先頭から数えます。</translation>
    </message>
    <message>
        <source>&amp;Alpha only 0 or full</source>
        <translation>アルファは 0 か最大のみ(&amp;A)</translation>
    </message>
    <message>
        <source>No entry of an IA palette is half transparent: its alpha is 0 or 255.</source>
        <translation>IA パレットのエントリに半透明のものはありません。アルファは 0 か 255 です。</translation>
    </message>
    <message>
        <source>Largest width in texels, 1 to %1</source>
        <translation>最大の幅 (テクセル)、1 ～ %1</translation>
    </message>
    <message>
        <source>Largest height in texels, 1 to %1</source>
        <translation>最大の高さ (テクセル)、1 ～ %1</translation>
    </message>
    <message>
        <source>Most bytes, 1 to %1</source>
        <translation>最大のバイト数、1 ～ %1</translation>
    </message>
    <message>
        <source>Most colours of a block, 1 to %1</source>
        <translation>ブロックの最大の色数、1 ～ %1</translation>
    </message>
    <message>
        <source>Texels on each side of a block, %1 to %2</source>
        <translation>ブロックの辺のテクセル数、%1 ～ %2</translation>
    </message>
    <message>
        <source>texels</source>
        <translation>テクセル</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>バイト</translation>
    </message>
    <message>
        <source>in blocks with sides of</source>
        <translation>色、ブロックの辺</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>バンク</translation>
    </message>
    <message>
        <source>&amp;Banks</source>
        <translation>バンク(&amp;B)</translation>
    </message>
    <message>
        <source>Pa&amp;lettes</source>
        <translation>パレット(&amp;L)</translation>
    </message>
    <message>
        <source>Bank %1</source>
        <translation>バンク %1</translation>
    </message>
    <message>
        <source>Bank %1, entries %2 to %3; click to choose it</source>
        <translation>バンク %1、エントリ %2～%3。クリックすると選びます</translation>
    </message>
    <message>
        <source>%1; click to attach the image to it</source>
        <translation>%1。クリックすると画像に割り当てます</translation>
    </message>
    <message>
        <source>No image is active.</source>
        <translation>アクティブな画像がありません。</translation>
    </message>
    <message>
        <source>The image is attached to no palette.</source>
        <translation>画像にパレットが割り当てられていません。</translation>
    </message>
    <message>
        <source>An image of 8 bits shows the whole palette and has no banks. The other page shows it through the open palettes.</source>
        <translation>8 ビットの画像はパレット全体を使うのでバンクがありません。もう一方のページで、開いているパレットごとの見え方を確かめられます。</translation>
    </message>
    <message>
        <source>A palette of 16 colours is a single bank. The other page shows the image through the open palettes.</source>
        <translation>16 色のパレットはバンク一つだけです。もう一方のページで、開いているパレットごとの見え方を確かめられます。</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>1 texel</source>
        <translation>1 テクセル</translation>
    </message>
    <message>
        <source>%1 texels</source>
        <translation>%1 テクセル</translation>
    </message>
    <message>
        <source>, same as entry %1</source>
        <translation>、エントリ %1 と同じ色</translation>
    </message>
    <message>
        <source>, fully transparent</source>
        <translation>、完全に透明</translation>
    </message>
    <message>
        <source>No texel shows entry %1.</source>
        <translation>エントリ %1 を使うテクセルはありません。</translation>
    </message>
    <message>
        <source>entries %1 to %2 are selected</source>
        <translation>エントリ %1～%2 を選択</translation>
    </message>
    <message>
        <source>%1 entries are selected</source>
        <translation>%1 個のエントリを選択</translation>
    </message>
    <message>
        <source>Adjust Entries</source>
        <translation>エントリの調整</translation>
    </message>
    <message>
        <source>Entries %1 to %2</source>
        <translation>エントリ %1～%2</translation>
    </message>
    <message>
        <source>&amp;Hue</source>
        <translation>色相(&amp;H)</translation>
    </message>
    <message>
        <source>Degrees to turn the hue by, from red towards green</source>
        <translation>色相を回す角度(赤から緑の向きに)</translation>
    </message>
    <message>
        <source>&amp;Saturation</source>
        <translation>彩度(&amp;S)</translation>
    </message>
    <message>
        <source>Percent of the way to grey, or to the purest colour</source>
        <translation>灰色、または最も鮮やかな色へ近づける割合(%)</translation>
    </message>
    <message>
        <source>&amp;Brightness</source>
        <translation>明るさ(&amp;B)</translation>
    </message>
    <message>
        <source>Percent of the way to black, or to white</source>
        <translation>黒、または白へ近づける割合(%)</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation>チャンネル(&amp;C)</translation>
    </message>
    <message>
        <source>The channel that the steps are for</source>
        <translation>段階を変えるチャンネル</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>輝度(&amp;I)</translation>
    </message>
    <message>
        <source>Steps down or up, as far as there are any</source>
        <translation>下げる、または上げる段階数(限度まで)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the file of another open palette.</source>
        <translation>「%1」は開いている別のパレットのファイルです。</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept in case of a crash: %1</source>
        <translation>異常終了に備えて未保存の作業を控えておくことができません: %1</translation>
    </message>
    <message>
        <source>Pictures of the project that no longer fit the image: %1, first &quot;%2&quot;. Its palette number is %3 now.</source>
        <translation>プロジェクトのピクチャーのうち %1 個が、この画像に合わなくなりました（最初は「%2」）。画像のパレット番号は %3 になりました。</translation>
    </message>
    <message>
        <source>The active image through every bank of its palette, or through every open palette. The framed one is the image&apos;s own; click another to choose it.</source>
        <translation>アクティブな画像を、パレットのすべてのバンク、または開いているすべてのパレットで見たものです。枠が付いているのが今の表示で、ほかをクリックするとそれを選びます。</translation>
    </message>
    <message>
        <source>Back to the entries as they are</source>
        <translation>元のエントリに戻します</translation>
    </message>
    <message>
        <source>Move Entries</source>
        <translation>エントリの移動</translation>
    </message>
    <message>
        <source>Swap Entries</source>
        <translation>エントリの入れ替え</translation>
    </message>
    <message>
        <source>Sort Entries</source>
        <translation>エントリの並べ替え</translation>
    </message>
    <message>
        <source>Merge Twins</source>
        <translation>同色をまとめる</translation>
    </message>
    <message>
        <source>Compact Entries</source>
        <translation>エントリを詰める</translation>
    </message>
    <message>
        <source>&amp;From entry</source>
        <translation>最初のエントリ(&amp;F)</translation>
    </message>
    <message>
        <source>First of the entries that this is about</source>
        <translation>対象の最初のエントリ</translation>
    </message>
    <message>
        <source>&amp;To entry</source>
        <translation>最後のエントリ(&amp;T)</translation>
    </message>
    <message>
        <source>Last of the entries that this is about</source>
        <translation>対象の最後のエントリ</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>行き先(&amp;P)</translation>
    </message>
    <message>
        <source>Where the first of the entries goes</source>
        <translation>最初のエントリの行き先</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>並べ替えの基準(&amp;S)</translation>
    </message>
    <message>
        <source>What the entries are compared by</source>
        <translation>エントリを比べる基準</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>明度</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用数</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>&amp;Reversed</source>
        <translation>逆順(&amp;R)</translation>
    </message>
    <message>
        <source>The other way round; equal entries keep their order</source>
        <translation>逆の順番にします。等しいエントリの順番は変わりません</translation>
    </message>
    <message>
        <source>&amp;Keep in place</source>
        <translation>動かさない(&amp;K)</translation>
    </message>
    <message>
        <source>Entries that stay where they are, such as 0, 5, 16-31</source>
        <translation>動かさないエントリ。例: 0, 5, 16-31</translation>
    </message>
    <message>
        <source>Each &amp;bank by itself</source>
        <translation>バンクごとに(&amp;B)</translation>
    </message>
    <message>
        <source>No entry leaves its bank of 16, as images of 4 bits need it</source>
        <translation>どのエントリも16色のバンクから出ません。4ビットの画像に必要です</translation>
    </message>
    <message>
        <source>&amp;Images and pictures of this palette</source>
        <translation>このパレットの画像とピクチャ(&amp;I)</translation>
    </message>
    <message>
        <source>What becomes of the images that show the palette</source>
        <translation>パレットを表示している画像がどうなるか</translation>
    </message>
    <message>
        <source>%1: follows</source>
        <translation>%1: 追従します</translation>
    </message>
    <message>
        <source>%1: shows none of these entries</source>
        <translation>%1: 対象のエントリを表示していません</translation>
    </message>
    <message>
        <source>%1: follows, but for %2 texels beyond the palette, which stay</source>
        <translation>%1: 追従します。パレットの範囲外のテクセル%2個は変わりません</translation>
    </message>
    <message>
        <source>%1: %2 texels would leave bank %3</source>
        <translation>%1: テクセル%2個がバンク%3から出てしまいます</translation>
    </message>
    <message>
        <source>%1: is not open, and would show other colours</source>
        <translation>%1: 開いていないため、色が変わります</translation>
    </message>
    <message>
        <source>No open image shows the palette.</source>
        <translation>このパレットを表示している画像は開いていません。</translation>
    </message>
    <message>
        <source>&amp;Open the pictures that are not open first</source>
        <translation>開いていないピクチャを先に開く(&amp;O)</translation>
    </message>
    <message>
        <source>So that they follow, too</source>
        <translation>それらも追従させます</translation>
    </message>
    <message>
        <source>The entries cannot go there.</source>
        <translation>そこへは移せません。</translation>
    </message>
    <message>
        <source>Colours of an image would leave its bank. Take each bank by itself.</source>
        <translation>画像の色がバンクから出てしまいます。バンクごとに行ってください。</translation>
    </message>
    <message>
        <source>Colours of an image would leave its bank.</source>
        <translation>画像の色がバンクから出てしまいます。</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>何も変わりません。</translation>
    </message>
    <message>
        <source>Entries that change places: %1</source>
        <translation>場所が変わるエントリ: %1</translation>
    </message>
    <message>
        <source>Twins that become free: %1</source>
        <translation>空くエントリ: %1</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>検査結果</translation>
    </message>
    <message>
        <source>Lists what in the open images breaks a rule, and what a check has found in the project. A click goes there; a double click, or Enter, opens the picture.</source>
        <translation>開いている画像のうちルールに反するものと、プロジェクトの検査で見つかったものの一覧です。クリックするとそこへ移り、ダブルクリックするか Enter を押すとピクチャーを開きます。</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>検査項目</translation>
    </message>
    <message>
        <source>Missing folder</source>
        <translation>見つからないフォルダー</translation>
    </message>
    <message>
        <source>Outside the project</source>
        <translation>プロジェクトの外</translation>
    </message>
    <message>
        <source>Missing file</source>
        <translation>見つからないファイル</translation>
    </message>
    <message>
        <source>Moved file</source>
        <translation>移動したファイル</translation>
    </message>
    <message>
        <source>Unreadable file</source>
        <translation>読めないファイル</translation>
    </message>
    <message>
        <source>Upper and lower case</source>
        <translation>大文字と小文字</translation>
    </message>
    <message>
        <source>Palette number</source>
        <translation>パレット番号</translation>
    </message>
    <message>
        <source>Depth and palette</source>
        <translation>色数とパレット</translation>
    </message>
    <message>
        <source>Doubled picture</source>
        <translation>重複したピクチャー</translation>
    </message>
    <message>
        <source>Doubled file</source>
        <translation>重複したファイル</translation>
    </message>
    <message>
        <source>Unused file</source>
        <translation>使われていないファイル</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>ピクチャー %1</translation>
    </message>
    <message>
        <source>There is no such folder</source>
        <translation>このフォルダーがありません</translation>
    </message>
    <message>
        <source>It lies outside the project&apos;s folder</source>
        <translation>プロジェクトのフォルダーの外にあります</translation>
    </message>
    <message>
        <source>%1 lies outside the project&apos;s folders</source>
        <translation>%1 はプロジェクトのフォルダーの外にあります</translation>
    </message>
    <message>
        <source>It names no image</source>
        <translation>画像が指定されていません</translation>
    </message>
    <message>
        <source>It names no palette</source>
        <translation>パレットが指定されていません</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 がありません</translation>
    </message>
    <message>
        <source>%1 is not there; %2 may be the one</source>
        <translation>%1 がありません。%2 かもしれません</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 holds no image</source>
        <translation>%1 は画像ではありません</translation>
    </message>
    <message>
        <source>%1 holds no palette</source>
        <translation>%1 はパレットではありません</translation>
    </message>
    <message>
        <source>On the disk it is %1</source>
        <translation>ディスク上では %1 です</translation>
    </message>
    <message>
        <source>Its palette number is %1, the last is %2</source>
        <translation>パレット番号は %1 ですが、最後は %2 です</translation>
    </message>
    <message>
        <source>It has indexes up to %1, the palette has %2 entries</source>
        <translation>インデックスは最大 %1 ですが、パレットの色数は %2 です</translation>
    </message>
    <message>
        <source>The same files and palette number as %1</source>
        <translation>ファイルとパレット番号が %1 と同じです</translation>
    </message>
    <message>
        <source>%1 has the same contents as %2</source>
        <translation>%1 と %2 は内容が同じです</translation>
    </message>
    <message>
        <source>%1 and %2 differ only in case</source>
        <translation>%1 と %2 は大文字と小文字だけが違います</translation>
    </message>
    <message>
        <source>No picture names it</source>
        <translation>どのピクチャーにも使われていません</translation>
    </message>
    <message>
        <source>%1 (and %2 more)</source>
        <translation>%1(ほか %2 件)</translation>
    </message>
    <message>
        <source>Checking the project: %p%</source>
        <translation>プロジェクトを検査中: %p%</translation>
    </message>
    <message>
        <source>Look for missing, moved, doubled and unused files and whatever does not fit</source>
        <translation>見つからない、移動した、重複した、使われていないファイルや、合わない設定を調べます</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>中止(&amp;S)</translation>
    </message>
    <message>
        <source>Stop checking; the list stays as it is</source>
        <translation>検査を中止します。一覧はそのまま残ります</translation>
    </message>
    <message>
        <source>Reli&amp;nk...</source>
        <translation>リンクし直す(&amp;N)...</translation>
    </message>
    <message>
        <source>Choose where the file is now; others that moved with it are offered</source>
        <translation>ファイルの今の場所を選びます。一緒に移動したほかのファイルも提案します</translation>
    </message>
    <message>
        <source>Re&amp;move from Project</source>
        <translation>プロジェクトから外す(&amp;M)</translation>
    </message>
    <message>
        <source>Take the picture out of the project; no file is deleted</source>
        <translation>ピクチャーをプロジェクトから外します。ファイルは削除しません</translation>
    </message>
    <message>
        <source>Add the file as a picture, with the palette or the image of its name</source>
        <translation>ファイルを、同じ名前のパレットまたは画像と一緒にピクチャーとして追加します</translation>
    </message>
    <message>
        <source>Nothing is wrong with the project.</source>
        <translation>プロジェクトに問題はありません。</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>リンクし直す</translation>
    </message>
    <message>
        <source>The same move finds %1 missing files. Those with a check mark are relinked.</source>
        <translation>同じ移動で、見つからないファイルが %1 個見つかりました。チェックのあるものをリンクし直します。</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>見つからない場所</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>見つかった場所</translation>
    </message>
    <message>
        <source>&amp;Relink</source>
        <translation>リンクし直す(&amp;R)</translation>
    </message>
    <message>
        <source>The project cannot hold the name of %1.</source>
        <translation>プロジェクトは %1 の名前を保存できません。</translation>
    </message>
    <message>
        <source>Add Files in Folder</source>
        <translation>フォルダーのファイルを追加</translation>
    </message>
    <message>
        <source>%1 images in %2 have a palette of their name. Those with a check mark become pictures.</source>
        <translation>%2 には、同じ名前のパレットがある画像が %1 個あります。チェックのあるものをピクチャーにします。</translation>
    </message>
    <message>
        <source>%1 holds no image with a palette of its name that the project does not have yet.</source>
        <translation>%1 には、同じ名前のパレットがあってまだプロジェクトにない画像がありません。</translation>
    </message>
    <message>
        <source>Left out: %1 that the project has, %2 without a palette of their name, %3 with a name that a project cannot hold.</source>
        <translation>除いたもの: プロジェクトにある %1 個、同じ名前のパレットがない %2 個、プロジェクトに保存できない名前の %3 個。</translation>
    </message>
    <message>
        <source>Check A&amp;ll</source>
        <translation>すべてチェック(&amp;L)</translation>
    </message>
    <message>
        <source>Give every row a check mark</source>
        <translation>すべての行にチェックを付けます</translation>
    </message>
    <message>
        <source>Check &amp;None</source>
        <translation>すべて外す(&amp;N)</translation>
    </message>
    <message>
        <source>Take every check mark away</source>
        <translation>すべての行のチェックを外します</translation>
    </message>
    <message>
        <source>Repea&amp;t Changes of Check</source>
        <translation>検査後の変更をやり直す(&amp;T)</translation>
    </message>
    <message>
        <source>What the images of the project&apos;s pictures must keep to. Findings in the View menu lists what does not.</source>
        <translation>プロジェクトのピクチャーの画像が守るルールです。守られていないものは、表示メニューの検査結果に一覧されます。</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>ファイルが途中で終わっています。</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: colours imported: %2, rounded: %3, without room: %4.</source>
        <translation>&quot;%1&quot;: 取り込んだ色: %2、丸めた色: %3、入らなかった色: %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: colours written: %2.</source>
        <translation>&quot;%1&quot;: 書き出した色: %2</translation>
    </message>
    <message>
        <source>Another program has changed %1.</source>
        <translation>%1 は他のプログラムによって変更されました。</translation>
    </message>
    <message>
        <source>Another program has changed %1, which has unsaved changes here.</source>
        <translation>%1 は他のプログラムによって変更されました。こちらにも未保存の変更があります。</translation>
    </message>
    <message>
        <source>%1 has been removed or renamed. Saving writes it again.</source>
        <translation>%1 は削除されたか、名前が変わりました。保存すると書き直されます。</translation>
    </message>
    <message>
        <source>%1 is there again, as it was.</source>
        <translation>%1 が元のまま戻りました。</translation>
    </message>
    <message>
        <source>%1 is there again, with other contents.</source>
        <translation>%1 が戻りましたが、内容が変わっています。</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>再読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>Take over what the file holds now; Undo brings back what was here</source>
        <translation>ファイルの今の内容を取り込みます。元に戻すと、ここにあった内容に戻ります</translation>
    </message>
    <message>
        <source>Open the project as its file holds it now; asks when it has unsaved changes</source>
        <translation>ファイルの今の内容でプロジェクトを開き直します。未保存の変更があれば確認します</translation>
    </message>
    <message>
        <source>Keep M&amp;y Version</source>
        <translation>このまま(&amp;Y)</translation>
    </message>
    <message>
        <source>Leave what is here as it is; the next save replaces the file</source>
        <translation>ここにある内容をそのままにします。次に保存するとファイルを置き換えます</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>比較(&amp;O)</translation>
    </message>
    <message>
        <source>Show the image of the file and this one in turn</source>
        <translation>ファイルの画像とこの画像を交互に表示します</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>この知らせを閉じます</translation>
    </message>
    <message>
        <source>Shown: the image of the file</source>
        <translation>表示中: ファイルの画像</translation>
    </message>
    <message>
        <source>Shown: this image</source>
        <translation>表示中: この画像</translation>
    </message>
    <message>
        <source>The file: %1 x %2 texels of %3 bits, this image: %4 x %5 of %6.</source>
        <translation>ファイル: %1 x %2 テクセル %3 ビット、この画像: %4 x %5 テクセル %6 ビット。</translation>
    </message>
    <message>
        <source>Reloaded after another program changed it: %1</source>
        <translation>他のプログラムが変更したため読み込み直しました: %1</translation>
    </message>
    <message>
        <source>Change from outside</source>
        <translation>外部での変更</translation>
    </message>
    <message>
        <source>%1
Another program has changed this file since it was opened or saved here.
Save over it all the same?</source>
        <translation>%1
ここで開くか保存したあとに、他のプログラムがこのファイルを変更しました。
それでも上書き保存しますか?</translation>
    </message>
    <message>
        <source>&amp;Reload documents without unsaved changes when other programs change their files.</source>
        <translation>未保存の変更がない文書は、他のプログラムがファイルを変更したら読み込み直す(&amp;R)</translation>
    </message>
    <message>
        <source>Otherwise a bar in the window of the document asks</source>
        <translation>オフのときは、文書のウィンドウのバーで尋ねます</translation>
    </message>
    <message>
        <source>Chec&amp;k Project</source>
        <translation>プロジェクトを検査(&amp;K)</translation>
    </message>
    <message>
        <source>Add to Projec&amp;t</source>
        <translation>プロジェクトに追加(&amp;T)</translation>
    </message>
    <message>
        <source>%1 findings in the project.</source>
        <translation>プロジェクトに %1 件見つかりました。</translation>
    </message>
    <message>
        <source>%1
The folder lets no file be replaced, so this one was written in place, and that broke off: %2
The file is no longer whole. Save under another name; until then what was to be saved is kept.</source>
        <translation>%1
このフォルダではファイルを置き換えられないため直接書き込みましたが、途中で止まりました: %2
ファイルは壊れています。別の名前で保存してください。それまで、保存するはずだった内容を控えておきます。</translation>
    </message>
    <message>
        <source>It is a device or a pipe, which holds no file.</source>
        <translation>デバイスまたはパイプで、ファイルではありません。</translation>
    </message>
    <message>
        <source>It is a link to a file that does not exist.</source>
        <translation>存在しないファイルへのリンクです。</translation>
    </message>
    <message>
        <source>Make the folder again, or save under another name in a folder that exists.</source>
        <translation>フォルダーを作り直すか、存在するフォルダーに別の名前で保存してください。</translation>
    </message>
    <message>
        <source>Save under another name in a folder of your own, or have the file&apos;s rights changed.</source>
        <translation>自分のフォルダーに別の名前で保存するか、ファイルの権限を変更してもらってください。</translation>
    </message>
    <message>
        <source>Save under another name.</source>
        <translation>別の名前で保存してください。</translation>
    </message>
    <message>
        <source>Make room on the disk and save again, or save on another disk.</source>
        <translation>ディスクの空きを増やしてもう一度保存するか、別のディスクに保存してください。</translation>
    </message>
    <message>
        <source>Save on another disk.</source>
        <translation>別のディスクに保存してください。</translation>
    </message>
    <message>
        <source>Save under a shorter name.</source>
        <translation>短い名前で保存してください。</translation>
    </message>
    <message>
        <source>Close other images or programs and save again.</source>
        <translation>ほかのイメージやプログラムを閉じて、もう一度保存してください。</translation>
    </message>
    <message>
        <source>Save again, or save on another disk.</source>
        <translation>もう一度保存するか、別のディスクに保存してください。</translation>
    </message>
    <message>
        <source>It may have been moved or renamed, or its disk may not be connected.</source>
        <translation>移動または名前が変更されたか、ディスクが接続されていない可能性があります。</translation>
    </message>
    <message>
        <source>Have the file&apos;s rights changed, or open a copy that you may read.</source>
        <translation>ファイルの権限を変更してもらうか、読み取れるコピーを開いてください。</translation>
    </message>
    <message>
        <source>Open a file that lies in the folder.</source>
        <translation>フォルダーの中のファイルを開いてください。</translation>
    </message>
    <message>
        <source>Open an ordinary file.</source>
        <translation>通常のファイルを開いてください。</translation>
    </message>
    <message>
        <source>Open the file itself, or let the link lead to it again.</source>
        <translation>ファイルそのものを開くか、リンクを正しいファイルに直してください。</translation>
    </message>
    <message>
        <source>Close other images or programs and try again.</source>
        <translation>ほかのイメージやプログラムを閉じて、もう一度試してください。</translation>
    </message>
    <message>
        <source>Try again, or open a copy on another disk.</source>
        <translation>もう一度試すか、別のディスクにあるコピーを開いてください。</translation>
    </message>
    <message>
        <source>The file on the disk is as it was, and your work stays open.</source>
        <translation>ディスク上のファイルは元のままで、作業中の内容は開いたままです。</translation>
    </message>
    <message>
        <source>Nothing has been changed. Close other images or programs and try again.</source>
        <translation>何も変更されていません。ほかのイメージやプログラムを閉じて、もう一度試してください。</translation>
    </message>
    <message>
        <source>The program that it was copied in may have ended. Copy it there once more.</source>
        <translation>コピー元のプログラムが終了した可能性があります。もう一度コピーしてください。</translation>
    </message>
    <message>
        <source>It would be kept in &quot;%1&quot;. Make that folder writable, or make room on its disk; until then, save often.</source>
        <translation>保管先は「%1」です。このフォルダーを書き込み可能にするか、ディスクの空きを増やしてください。それまではこまめに保存してください。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; is damaged.</source>
        <translation>設定ファイル「%1」が壊れています。</translation>
    </message>
    <message>
        <source>What can be read of it is used; everything else is as at the first start. The damaged file is kept as &quot;%1&quot;.</source>
        <translation>読み取れる設定はそのまま使い、ほかは初回起動時と同じになります。壊れたファイルは「%1」として残してあります。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; cannot be read.</source>
        <translation>設定ファイル「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>The settings cannot be kept in &quot;%1&quot;.</source>
        <translation>設定を「%1」に保存できません。</translation>
    </message>
    <message>
        <source>Make the file and its folder readable and writable, or make room on the disk. Until then, settings and the list of what is open last as long as the program runs.</source>
        <translation>ファイルとそのフォルダーを読み書きできるようにするか、ディスクの空きを増やしてください。それまで、設定と開いているファイルの一覧はプログラムの実行中だけ有効です。</translation>
    </message>
    <message>
        <source>Waiting for &quot;%1&quot;...</source>
        <translation>「%1」を待っています...</translation>
    </message>
    <message>
        <source>Reading &quot;%1&quot;... (%2 of %3 MB)</source>
        <translation>「%1」を読み込んでいます... (%2 / %3 MB)</translation>
    </message>
    <message>
        <source>The plug-in %1 has not answered for %2 seconds.</source>
        <translation>プラグイン %1 が %2 秒間応答していません。</translation>
    </message>
    <message>
        <source>All unsaved work has been kept. You can wait for the plug-in, or end the program; what was not saved is offered at its next start.</source>
        <translation>保存していない作業はすべて保管してあります。プラグインを待つか、プログラムを終了できます。保存していない内容は次の起動時に復元できます。</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>待つ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;End the Program</source>
        <translation>プログラムを終了(&amp;E)</translation>
    </message>
    <message>
        <source>red %1, green %2, blue %3, alpha %4</source>
        <translation>赤 %1、緑 %2、青 %3、アルファ %4</translation>
    </message>
    <message>
        <source>intensity %1, alpha %2</source>
        <translation>輝度 %1、アルファ %2</translation>
    </message>
    <message>
        <source>not in the palette</source>
        <translation>パレットにありません</translation>
    </message>
    <message>
        <source>Entry %1: %2</source>
        <translation>エントリ %1: %2</translation>
    </message>
    <message>
        <source>%1, %2: value %3</source>
        <translation>%1, %2: 値 %3</translation>
    </message>
    <message>
        <source>%1, %2: entry %3, %4</source>
        <translation>%1, %2: エントリ %3、%4</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>スタートページ</translation>
    </message>
    <message>
        <source>What to begin with: a new texture, a file that was open before, a sample. The page shows while no document is open.</source>
        <translation>新しいテクスチャ、以前に開いたファイル、サンプルから始められます。このページは文書が一つも開いていない間に表示されます。</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>最近使ったファイル</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>&amp;First Steps</source>
        <translation>はじめの一歩(&amp;F)</translation>
    </message>
    <message>
        <source>Open the page of the guide that leads through a first texture</source>
        <translation>最初のテクスチャを作る手順のガイドを開きます</translation>
    </message>
    <message>
        <source>&amp;Show this page while nothing is open</source>
        <translation>何も開いていないときにこのページを表示する(&amp;S)</translation>
    </message>
    <message>
        <source>Start Page in the View menu brings the page back</source>
        <translation>「表示」メニューの「スタートページ」で再び表示できます</translation>
    </message>
    <message>
        <source>New Texture</source>
        <translation>テクスチャの新規作成</translation>
    </message>
    <message>
        <source>&amp;Palette:</source>
        <translation>パレット(&amp;P):</translation>
    </message>
    <message>
        <source>The palette that the image is attached to: a new one of as many entries as the image has colours, or an open one</source>
        <translation>画像に割り当てるパレット。画像の色数と同じエントリ数の新しいパレット、または開いているパレットです</translation>
    </message>
    <message>
        <source>New, 16bit RGBA</source>
        <translation>新規、16bit RGBA</translation>
    </message>
    <message>
        <source>New, 16bit IA</source>
        <translation>新規、16bit IA</translation>
    </message>
    <message>
        <source>Esc or F11 brings the bars back.</source>
        <translation>Esc キーまたは F11 キーでバーが戻ります。</translation>
    </message>
    <message>
        <source>More of the bar %1</source>
        <translation>%1 バーの続き</translation>
    </message>
    <message>
        <source>The image has no palette yet: choose Give a Palette in its context menu.</source>
        <translation>画像にまだパレットがありません。右クリックのメニューで「パレットを付ける」を選んでください。</translation>
    </message>
    <message>
        <source>Search Commands</source>
        <translation>コマンドの検索</translation>
    </message>
    <message>
        <source>Command to search for</source>
        <translation>検索するコマンド</translation>
    </message>
    <message>
        <source>Name of a command</source>
        <translation>コマンドの名前</translation>
    </message>
    <message>
        <source>Commands found</source>
        <translation>見つかったコマンド</translation>
    </message>
    <message>
        <source>No command has such a name.</source>
        <translation>その名前のコマンドはありません。</translation>
    </message>
    <message>
        <source>Type some of a command&apos;s name, beginnings of its words or their first letters. Up and Down choose among what is found, Enter runs it and Esc goes back. A command that cannot be used now says why.</source>
        <translation>コマンドの名前の一部、単語の先頭、または頭文字を入力します。上下の矢印キーで候補を選び、Enter で実行し、Esc で戻ります。今使用できないコマンドには理由が表示されます。</translation>
    </message>
    <message>
        <source>%1 &gt; %2</source>
        <translation>%1 &gt; %2</translation>
    </message>
    <message>
        <source>disabled: %1</source>
        <translation>使用不可: %1</translation>
    </message>
    <message>
        <source>no image is open</source>
        <translation>画像が開かれていません</translation>
    </message>
    <message>
        <source>the active window is not an image</source>
        <translation>作業中のウィンドウが画像ではありません</translation>
    </message>
    <message>
        <source>no document is open</source>
        <translation>ドキュメントが開かれていません</translation>
    </message>
    <message>
        <source>the active window is not the tree of the project</source>
        <translation>作業中のウィンドウがプロジェクトのツリーではありません</translation>
    </message>
    <message>
        <source>no project is open</source>
        <translation>プロジェクトが開かれていません</translation>
    </message>
    <message>
        <source>no picture of the project is chosen</source>
        <translation>プロジェクトのピクチャーが選択されていません</translation>
    </message>
    <message>
        <source>no palette is open</source>
        <translation>パレットが開かれていません</translation>
    </message>
    <message>
        <source>no palette entry is selected</source>
        <translation>パレットのエントリが選択されていません</translation>
    </message>
    <message>
        <source>nothing is selected</source>
        <translation>何も選択されていません</translation>
    </message>
    <message>
        <source>the tool in use selects nothing; choose Select first</source>
        <translation>使用中のツールでは選択できません。先に「選択」を選んでください</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>元に戻す操作がありません</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>やり直す操作がありません</translation>
    </message>
    <message>
        <source>there is no picture on the clipboard</source>
        <translation>クリップボードに画像がありません</translation>
    </message>
    <message>
        <source>no palette entries have been copied</source>
        <translation>パレットのエントリがコピーされていません</translation>
    </message>
    <message>
        <source>the image is shown at its largest already</source>
        <translation>画像はすでに最大の倍率で表示されています</translation>
    </message>
    <message>
        <source>the image is shown at its smallest already</source>
        <translation>画像はすでに最小の倍率で表示されています</translation>
    </message>
    <message>
        <source>there are no zooms but those in the menu</source>
        <translation>メニューにある倍率だけが使用できます</translation>
    </message>
    <message>
        <source>the image does not have 8 bits</source>
        <translation>画像が 8 ビットではありません</translation>
    </message>
    <message>
        <source>the image does not have 4 bits</source>
        <translation>画像が 4 ビットではありません</translation>
    </message>
    <message>
        <source>the image has no texels</source>
        <translation>画像にテクセルがありません</translation>
    </message>
    <message>
        <source>the image is attached to the current palette already</source>
        <translation>画像はすでに現在のパレットに割り当てられています</translation>
    </message>
    <message>
        <source>the image has a palette already</source>
        <translation>画像にはすでにパレットがあります</translation>
    </message>
    <message>
        <source>it has never been saved</source>
        <translation>まだ一度も保存されていません</translation>
    </message>
    <message>
        <source>there are no unsaved changes</source>
        <translation>保存されていない変更がありません</translation>
    </message>
    <message>
        <source>the brush has its largest size already</source>
        <translation>ブラシはすでに最大です</translation>
    </message>
    <message>
        <source>the brush has its smallest size already</source>
        <translation>ブラシはすでに最小です</translation>
    </message>
    <message>
        <source>a block of cells is selected, not one run of entries</source>
        <translation>続いたエントリではなく、セルのブロックが選択されています</translation>
    </message>
    <message>
        <source>fewer than three entries are selected</source>
        <translation>選択されているエントリが 3 個未満です</translation>
    </message>
    <message>
        <source>the text of the entry is not understood</source>
        <translation>エントリの文字列を解釈できません</translation>
    </message>
    <message>
        <source>the palette has no entries, or more than 256</source>
        <translation>パレットにエントリがないか、256 個を超えています</translation>
    </message>
    <message>
        <source>no open image shows this palette</source>
        <translation>このパレットを表示している画像が開かれていません</translation>
    </message>
    <message>
        <source>no window is minimized</source>
        <translation>最小化されたウィンドウがありません</translation>
    </message>
    <message>
        <source>nothing was relinked, removed or added since a check</source>
        <translation>検査の後で関連付け、削除、追加されたものがありません</translation>
    </message>
    <message>
        <source>no such file has been opened yet</source>
        <translation>まだこの種類のファイルを開いていません</translation>
    </message>
    <message>
        <source>no node is selected</source>
        <translation>ノードが選択されていません</translation>
    </message>
    <message>
        <source>the selected node does not offer this</source>
        <translation>選択されているノードでは使用できません</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
    <message>
        <source>Shows the commands whose name, menu or keys fit</source>
        <translation>名前、メニュー、キーが合うコマンドを表示します</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>プリセット(&amp;P):</translation>
    </message>
    <message>
        <source>Gives all commands the keys of this choice</source>
        <translation>すべてのコマンドにこの選択のキーを割り当てます</translation>
    </message>
    <message>
        <source>As in other pixel editors</source>
        <translation>ほかのドット絵エディターと同じ</translation>
    </message>
    <message>
        <source>Your own</source>
        <translation>独自</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>コマンドとそのキー</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>あり</translation>
    </message>
    <message>
        <source>New &amp;keys:</source>
        <translation>新しいキー(&amp;K):</translation>
    </message>
    <message>
        <source>Press the keys here that the chosen command is to have. Backspace takes them out again, Enter sets them, Escape goes back to the list.</source>
        <translation>選んだコマンドに割り当てるキーをここで押します。Backspace で消し、Enter で割り当て、Esc で一覧に戻ります。</translation>
    </message>
    <message>
        <source>press keys</source>
        <translation>キーを押してください</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>割り当て(&amp;S)</translation>
    </message>
    <message>
        <source>Gives the command the new keys in place of those that it has</source>
        <translation>今のキーの代わりに新しいキーをコマンドに割り当てます</translation>
    </message>
    <message>
        <source>Gives the command the new keys beside those that it has</source>
        <translation>今のキーに加えて新しいキーをコマンドに割り当てます</translation>
    </message>
    <message>
        <source>No Ke&amp;ys</source>
        <translation>キーなし(&amp;Y)</translation>
    </message>
    <message>
        <source>Takes all keys from the command</source>
        <translation>コマンドからすべてのキーを外します</translation>
    </message>
    <message>
        <source>Gives the command the keys again that it came with</source>
        <translation>コマンドのキーを最初のものに戻します</translation>
    </message>
    <message>
        <source>Reset A&amp;ll</source>
        <translation>すべてリセット(&amp;L)</translation>
    </message>
    <message>
        <source>Gives all commands the keys again that they came with</source>
        <translation>すべてのコマンドのキーを最初のものに戻します</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>取り込み(&amp;I)...</translation>
    </message>
    <message>
        <source>Takes the keys of all commands from a file</source>
        <translation>すべてのコマンドのキーをファイルから取り込みます</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>書き出し(&amp;E)...</translation>
    </message>
    <message>
        <source>Writes the keys of all commands into a file</source>
        <translation>すべてのコマンドのキーをファイルに書き出します</translation>
    </message>
    <message>
        <source>Shortcut Files (*.shortcuts)|*.shortcuts|All Files (*.*)|*.*||</source>
        <translation>ショートカット ファイル (*.shortcuts)|*.shortcuts|すべてのファイル (*.*)|*.*||</translation>
    </message>
    <message>
        <source>%1 belongs to %2, which will lose it.</source>
        <translation>%1 は「%2」のキーで、割り当てるとそこから外れます。</translation>
    </message>
    <message>
        <source>%2 has %1 already.</source>
        <translation>「%2」にはすでに %1 が割り当てられています。</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 は使われていません。</translation>
    </message>
    <message>
        <source>The file names %1 commands that this program does not have. They have been passed over.</source>
        <translation>このファイルには、このプログラムにないコマンドが %1 個あります。それらは無視しました。</translation>
    </message>
    <message>
        <source>%1 is needed to move about in windows and images, and cannot be given to a command.</source>
        <translation>%1 はウィンドウや画像の中の移動に必要なため、コマンドに割り当てられません。</translation>
    </message>
    <message>
        <source>%1 opens menus or belongs to the desktop, and cannot be given to a command.</source>
        <translation>%1 はメニューを開くキーかデスクトップのキーなので、コマンドに割り当てられません。</translation>
    </message>
    <message>
        <source>As long as no command has it, %1 zooms images.</source>
        <translation>%1 は、コマンドに割り当てるまでは画像の拡大と縮小に使われます。</translation>
    </message>
    <message>
        <source>This is no file of shortcuts.</source>
        <translation>ショートカットのファイルではありません。</translation>
    </message>
    <message>
        <source>These shortcuts are from a newer version of the program.</source>
        <translation>新しいバージョンのプログラムのショートカットです。</translation>
    </message>
    <message>
        <source>Line %1 names no command.</source>
        <translation>%1 行目にコマンドがありません。</translation>
    </message>
    <message>
        <source>Line %1: &quot;%2&quot; are no keys.</source>
        <translation>%1 行目: 「%2」はキーではありません。</translation>
    </message>
    <message>
        <source>Line %1: &quot;%2&quot; cannot be given to a command.</source>
        <translation>%1 行目: 「%2」はコマンドに割り当てられません。</translation>
    </message>
    <message>
        <source>Line %1: the command or its keys &quot;%2&quot; have come before.</source>
        <translation>%1 行目: コマンドかそのキー「%2」がすでに前の行にあります。</translation>
    </message>
    <message>
        <source>not changed</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>no keys</source>
        <translation>キーなし</translation>
    </message>
    <message>
        <source>Undo List</source>
        <translation>操作履歴</translation>
    </message>
    <message>
        <source>The steps of the active image or of the current palette, the oldest first. The mark tells where the document stands now; steps below it have been undone. Click a step, or go to it with the arrow keys and press Enter, and the document becomes what it was after that step.</source>
        <translation>アクティブな画像か現在のパレットの操作を古い順に並べます。印は文書が今どこにあるかを示し、それより下の操作は取り消されています。操作をクリックするか、矢印キーで選んで Enter を押すと、文書はその操作の直後の状態になります。</translation>
    </message>
    <message>
        <source>Whose steps</source>
        <translation>どちらの操作か</translation>
    </message>
    <message>
        <source>There is no image.</source>
        <translation>画像がありません。</translation>
    </message>
    <message>
        <source>There is no palette.</source>
        <translation>パレットがありません。</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%2 のうち %1: %3</translation>
    </message>
    <message>
        <source>%1 of %2: %3, current</source>
        <translation>%2 のうち %1: %3、現在</translation>
    </message>
    <message>
        <source>%1 of %2: %3, undone</source>
        <translation>%2 のうち %1: %3、取り消し済み</translation>
    </message>
    <message>
        <source>A piece floats above the image. Place it with Enter, or drop it with Esc, before you go to another step.</source>
        <translation>画像の上に浮いている部分があります。ほかの操作へ移る前に、Enter で置くか Esc で捨ててください。</translation>
    </message>
    <message>
        <source>Opened</source>
        <translation>開いたとき</translation>
    </message>
    <message>
        <source>Earlier steps</source>
        <translation>以前の操作</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>ドット</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>ペン</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>直線</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>四角形</translation>
    </message>
    <message>
        <source>Box Fill</source>
        <translation>四角形塗りつぶし</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>円</translation>
    </message>
    <message>
        <source>Circle Fill</source>
        <translation>円塗りつぶし</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Replacer</source>
        <translation>色の置き換え</translation>
    </message>
    <message>
        <source>Lift Selection</source>
        <translation>選択範囲の切り離し</translation>
    </message>
    <message>
        <source>Place Selection</source>
        <translation>選択範囲の配置</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Paste Matching Colours</source>
        <translation>色を合わせて貼り付け</translation>
    </message>
    <message>
        <source>Place Import</source>
        <translation>インポートした絵の配置</translation>
    </message>
    <message>
        <source>Flip X</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Flip Y</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Turn Left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Turn Right</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>Turn Half</source>
        <translation>180 度回転</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>拡大・縮小</translation>
    </message>
    <message>
        <source>Crop to Selection</source>
        <translation>選択範囲で切り抜き</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>ずらす</translation>
    </message>
    <message>
        <source>Shift by Half</source>
        <translation>半分ずらす</translation>
    </message>
    <message>
        <source>To 8 Bits</source>
        <translation>8 ビットに変換</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Plug-In</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>Apply Entry</source>
        <translation>エントリの適用</translation>
    </message>
    <message>
        <source>Edit Entry</source>
        <translation>エントリの編集</translation>
    </message>
    <message>
        <source>Paste Entries</source>
        <translation>エントリの貼り付け</translation>
    </message>
    <message>
        <source>Ramp</source>
        <translation>グラデーション</translation>
    </message>
    <message>
        <source>Invert Entries</source>
        <translation>エントリの色を反転</translation>
    </message>
    <message>
        <source>Reverse Entries</source>
        <translation>エントリを逆順に</translation>
    </message>
    <message>
        <source>Fill Entries</source>
        <translation>エントリの塗りつぶし</translation>
    </message>
    <message>
        <source>The keys in &quot;%1&quot; cannot be taken over. %2</source>
        <translation>「%1」のキーは取り込めません。%2</translation>
    </message>
    <message>
        <source>Clear the field</source>
        <translation>欄を空にする</translation>
    </message>
</context>
</TS>
